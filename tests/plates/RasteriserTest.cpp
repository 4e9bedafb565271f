#include "plates/engraver/Rasteriser.h"

#include <gtest/gtest.h>
#include <map>

namespace tambrelle::engraver {

namespace {

std::map<std::pair<int, int>, double> coverageOf(const Path& outline, int width = 32, int height = 32) {
    Rasteriser rasteriser(width, height);
    std::map<std::pair<int, int>, double> cover;
    rasteriser.fill(outline, [&cover](int x, int y, float c) { cover[{x, y}] += static_cast<double>(c); });
    return cover;
}

double sumOf(const std::map<std::pair<int, int>, double>& cover) {
    double sum = 0;
    for (const auto& [place, c] : cover)
        sum += c;
    return sum;
}

} // namespace

TEST(Rasteriser, CoversEachPixelByItsShare) {
    const auto cover = coverageOf({{2.25, 3}, {5.5, 3}, {5.5, 4.5}, {2.25, 4.5}});
    EXPECT_NEAR(cover.at({2, 3}), 0.75, 1e-5);
    EXPECT_NEAR(cover.at({3, 3}), 1, 1e-5);
    EXPECT_NEAR(cover.at({5, 3}), 0.5, 1e-5);
    EXPECT_NEAR(cover.at({3, 4}), 0.5, 1e-5);
    EXPECT_FALSE(cover.contains({6, 3}));
    EXPECT_NEAR(sumOf(cover), 3.25 * 1.5, 1e-4);
}

TEST(Rasteriser, SumsToTheArea) {
    const Path triangle{{1.3, 2.1}, {28.7, 9.4}, {11.2, 29.9}};
    EXPECT_NEAR(sumOf(coverageOf(triangle)), std::fabs(signedArea(triangle)), 0.6);
    EXPECT_NEAR(sumOf(coverageOf(reversed(triangle))), std::fabs(signedArea(triangle)), 0.6);
}

TEST(Rasteriser, CutsWhatLiesOutside) {
    EXPECT_NEAR(sumOf(coverageOf({{-40, -40}, {80, -40}, {80, 80}, {-40, 80}})), 32 * 32, 1e-3);
    EXPECT_TRUE(coverageOf({{40, 5}, {50, 5}, {50, 9}}).empty());
    EXPECT_TRUE(coverageOf({{4, 5}, {8, 9}}).empty());
}

TEST(Rasteriser, LeavesNothingBehind) {
    Rasteriser rasteriser(32, 32);
    const auto ignore = [](int, int, float) {};
    rasteriser.fill({{-3, 4}, {36, 9}, {20, 40}}, ignore);
    double sum = 0;
    rasteriser.fill({{4, 4}, {6, 4}, {6, 6}, {4, 6}},
                    [&sum](int, int, float c) { sum += static_cast<double>(c); });
    EXPECT_NEAR(sum, 4, 1e-5);
}

} // namespace tambrelle::engraver
