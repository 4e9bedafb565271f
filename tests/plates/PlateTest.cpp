#include "plates/engraver/Plate.h"
#include "plates/engraver/Composition.h"
#include "plates/engraver/PngReader.h"
#include "plates/engraver/Tube.h"

#include <gtest/gtest.h>

namespace tambrelle::engraver {

namespace {

const Path square{{100, 100}, {140, 100}, {140, 140}, {100, 140}};

float inkAt(const Plate& plate, Point p) {
    return plate.inkLayer()(static_cast<int>(p.x * Plate::scale), static_cast<int>(p.y * Plate::scale)).a;
}

} // namespace

TEST(Plate, ANewPartHidesTheInkBelowItAndAHaloAroundIt) {
    Plate plate("test");
    plate.ink({{90, 118}, {150, 118}, {150, 122}, {90, 122}});
    EXPECT_EQ(inkAt(plate, {120, 120}), 1);
    plate.knockOut(square, {.halo = 2});
    EXPECT_NEAR(inkAt(plate, {120, 120}), 0, 1e-6);
    EXPECT_NEAR(inkAt(plate, {99, 120}), 0, 1e-3);
    EXPECT_EQ(inkAt(plate, {96, 120}), 1);
}

TEST(Plate, StaysWithinItsClip) {
    Plate plate("test");
    {
        const Plate::Clip clip(plate, square);
        plate.ink({{50, 50}, {200, 50}, {200, 200}, {50, 200}});
    }
    EXPECT_EQ(inkAt(plate, {120, 120}), 1);
    EXPECT_EQ(inkAt(plate, {90, 120}), 0);
    plate.ink({{50, 50}, {60, 50}, {60, 60}, {50, 60}});
    EXPECT_EQ(inkAt(plate, {55, 55}), 1);
}

TEST(Plate, InkUnderneathDoesNotShowThroughAWash) {
    Plate plate("test");
    plate.flat(square, white);
    const Plate::Under under(plate);
    plate.ink({{50, 118}, {200, 118}, {200, 122}, {50, 122}});
    EXPECT_EQ(inkAt(plate, {120, 120}), 0);
    EXPECT_EQ(inkAt(plate, {70, 120}), 1);
}

TEST(Plate, HatchesDarkMoreThanLightAndPaperNotAtAll) {
    const auto inked = [](double tone) {
        Plate plate("test");
        Patch patch(12, 12);
        for (std::size_t i = 0; i < 12; ++i)
            for (std::size_t j = 0; j < 12; ++j) {
                patch.point(i, j) = {100.0 + 5 * static_cast<double>(j), 100.0 + 5 * static_cast<double>(i)};
                patch.tone(i, j) = tone;
            }
        plate.hatch(patch);
        double sum = 0;
        for (const Pixel& p : plate.inkLayer().cells())
            sum += static_cast<double>(p.a);
        return sum / (55.0 * 55 * Plate::scale * Plate::scale);
    };
    EXPECT_EQ(inked(0.1), 0);
    EXPECT_GT(inked(0.5), 0.08);
    EXPECT_GT(inked(0.9), inked(0.5) + 0.1);
    EXPECT_LT(inked(1.0), 0.55);
}

TEST(Plate, KeepsWhatReachesALittleBeyondItsEdge) {
    Plate plate("test");
    const double reach = Plate::bleed - 4;
    plate.ink({{-reach, -reach}, {20, -reach}, {20, 20}, {-reach, 20}});
    EXPECT_EQ(inkAt(plate, {-reach + 1, -reach + 1}), 1);
    EXPECT_FALSE(cutOff(plate));
    plate.stroke({{200, 200}, {Plate::width + 2.0 * Plate::bleed, 200}}, {.width = 3, .fade = 0});
    EXPECT_TRUE(cutOff(plate));
}

TEST(Composition, ShowsWholeWhatReachesBeyondTheSurface) {
    const auto draw = [](double shift) {
        Plate plate("test");
        plate.ink({{10 + shift, 100}, {60 + shift, 100}, {60 + shift, 140}, {10 + shift, 140}});
        return fingerprint(compose(plate, {.granulation = 0}));
    };
    EXPECT_EQ(draw(-20), draw(0));
}

TEST(Composition, CutsToTheSubjectWithMarginsOnWhite) {
    Plate plate("test");
    tube(plate, {{40, 300}, {300, 40}}, 12);
    const Picture picture = compose(plate);
    ASSERT_EQ(picture.width, 576);
    ASSERT_EQ(picture.height, 520);
    int left = picture.width, right = -1, top = picture.height, bottom = -1;
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            if (picture.rgb[static_cast<std::size_t>(y * picture.width + x) * 3] < 200) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
    EXPECT_NEAR(left, picture.width - 1 - right, 4);
    EXPECT_NEAR(top, 24, 3);
    EXPECT_NEAR(picture.height - 1 - bottom, 24, 3);
}

TEST(Composition, AnEmptyPlateIsWhite) {
    const Picture picture = compose(Plate("test"));
    EXPECT_EQ(std::count(picture.rgb.begin(), picture.rgb.end(), 255), static_cast<long>(picture.rgb.size()));
}

TEST(Composition, DrawsTheSameTwiceAndAnotherForAnotherName) {
    const auto draw = [](std::string_view name) {
        Plate plate(name);
        twig(plate, {{60, 200}, {150, 180}, {300, 220}}, {6, 4});
        return fingerprint(compose(plate));
    };
    EXPECT_EQ(draw("a"), draw("a"));
    EXPECT_NE(draw("a"), draw("b"));
}

} // namespace tambrelle::engraver
