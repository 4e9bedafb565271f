#include "plates/engraver/Body.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/PlaneCuts.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Sheet.h"
#include "plates/engraver/Vessel.h"

#include <gtest/gtest.h>

namespace tambrelle::engraver {

TEST(Body, ARoundConeHasItsExactDistance) {
    Body::Cone cone;
    cone.a = {0, 0, 0};
    cone.b = {10, 0, 0};
    cone.ra = cone.rb = 2;
    cone.prepare();
    EXPECT_NEAR(cone.distance(5, 7, 0), 5, 1e-9);
    EXPECT_NEAR(cone.distance(-4, 3, 0), 3, 1e-9);
    EXPECT_NEAR(cone.distance(14, 0, 3), 3, 1e-9);
    EXPECT_NEAR(cone.distance(5, 0, 0), -2, 1e-9);
}

TEST(Body, CoversItsJointsAndKnowsTheLight) {
    Plate plate("test");
    Body body;
    body.chain({{150, 150, 0, 30}, {230, 150, 0, 30}});
    body.engrave(plate, {});
    ASSERT_TRUE(body.toneAt({190, 150}));
    EXPECT_FALSE(body.toneAt({190, 200}));
    EXPECT_NEAR(body.depthAt({190, 150}), 30, 0.5);
    EXPECT_LT(*body.toneAt({190, 132}), *body.toneAt({190, 170}));
    EXPECT_GT(body.coatAt({190, 150}).x, 0.99);
    body.mirror(190);
    body.engrave(plate, {});
    EXPECT_LT(body.coatAt({190, 150}).x, -0.99);
}

TEST(Relief, InflatesAnOutline) {
    Plate plate("test");
    const ReliefSurface s = relief(plate, ellipse({200, 180}, 50, 50), {.bevel = 60});
    EXPECT_NEAR(s.heightAt({200, 180}), 50, 5);
    EXPECT_FALSE(s.covers({260, 180}));
    ASSERT_TRUE(s.covers({170, 150}));
    EXPECT_LT(*s.toneAt({175, 155}), *s.toneAt({228, 208}));
}

TEST(Lathe, PlacesThingsOnItsSurface) {
    Plate plate("test");
    const LatheSurface s = lathe(plate, {200, 300}, 100, 40, {.tilt = 0});
    EXPECT_NEAR(s.at(0.5, 0).y, 250, 1e-6);
    EXPECT_NEAR(std::fabs(s.at(0.5, 0).x - 200), 40, 1e-6);
    EXPECT_GT(s.facing(0.5, 90), 0.99);
    EXPECT_LT(s.facing(0.5, 270), -0.99);
    const Bounds b = boundsOf(s.outline);
    EXPECT_NEAR(b.right - b.left, 80, 2);
}

TEST(Vessel, ShowsItsHollowOrWhatStandsInIt) {
    const auto middle = [](const MouthForm& form) {
        Plate plate("test");
        const LatheSurface s = lathe(plate, {200, 300}, 100, 60, {.tilt = 0.5});
        mouth(plate, s, form);
        const Point p = s.at(1, 90, -50);
        return plate.washLayer()(static_cast<int>(p.x * Plate::scale), static_cast<int>(p.y * Plate::scale));
    };
    const Pixel empty = middle({}), water = middle({.liquid = palettes::water, .level = 0.02});
    EXPECT_GT(empty.r, empty.b + 0.1F);
    EXPECT_GT(water.b, water.r);
}

TEST(Sheets, TheNearerSheetHidesTheFarther) {
    Plate plate("test");
    Sheets sheets;
    const auto flat = [&sheets](double z, double half, int palette) {
        sheets.add(
            4, 4,
            [=](double u, double v) {
                return Vector3{200 + half * (2 * v - 1), 180 + half * (2 * u - 1), z};
            },
            [](double, double v) { return v * 40; }, [](double, double) { return 0.0; }, palette);
    };
    flat(10, 20, 0);
    flat(0, 40, 1);
    sheets.engrave(plate, {.palettes = {palettes::red, palettes::blue}});
    const Pixel& front = plate.washLayer()(200 * Plate::scale, 180 * Plate::scale);
    const Pixel& back = plate.washLayer()(230 * Plate::scale, 180 * Plate::scale);
    EXPECT_GT(front.r, front.b);
    EXPECT_GT(back.b, back.r);
}

TEST(PlaneCuts, LinesWidenWithToneAndThinWithTheirCrowd) {
    const auto share = [](double tone, double frequency) {
        double sum = 0;
        for (int k = 0; k < 4000; ++k)
            sum += lineInk(k * 0.01 * frequency, frequency, tone, 2, 0.24, 0.5, 1, 1.2);
        return sum / 4000;
    };
    EXPECT_EQ(share(0.2, 0.5), 0);
    EXPECT_GT(share(0.9, 0.5), share(0.5, 0.5));
    EXPECT_NEAR(share(0.8, 0.5), share(0.8, 1.0), 0.05);
    EXPECT_LT(share(1.0, 0.7), 0.62);
}

} // namespace tambrelle::engraver
