#include "plates/engraver/Path.h"
#include "plates/engraver/Profile.h"
#include "plates/engraver/Random.h"

#include <gtest/gtest.h>

namespace tambrelle::engraver {

TEST(Path, SplinesPassThroughTheirPoints) {
    const Path points{{0, 0}, {10, 5}, {25, -3}, {40, 8}};
    const Path curve = spline(points, 10);
    ASSERT_EQ(curve.size(), 31U);
    for (std::size_t i = 0; i < points.size(); ++i)
        EXPECT_NEAR(length(curve[i * 10] - points[i]), 0, 1e-9);
    EXPECT_EQ(closedSpline(points, 10).size(), 40U);
}

TEST(Path, ResamplesAtEvenDistances) {
    const Path path = resample({{0, 0}, {3, 0}, {3, 9}}, 13);
    ASSERT_EQ(path.size(), 13U);
    for (std::size_t i = 1; i < path.size(); ++i)
        EXPECT_NEAR(length(path[i] - path[i - 1]), 1, 1e-9);
    EXPECT_NEAR(along(path, 0.5).y, 3, 1e-9);
    EXPECT_NEAR(angleAlong({{0, 0}, {0, 5}}, 0.5), 90, 1e-9);
}

TEST(Path, KnowsInsideFromOutside) {
    const Path square{{0, 0}, {4, 0}, {4, 4}, {0, 4}};
    EXPECT_TRUE(contains(square, {1, 3}));
    EXPECT_FALSE(contains(square, {5, 3}));
    EXPECT_NEAR(signedArea(square), 16, 1e-12);
    EXPECT_NEAR(signedArea(reversed(square)), -16, 1e-12);
    EXPECT_EQ(hull({{0, 0}, {4, 0}, {4, 4}, {0, 4}, {2, 2}, {1, 3}}).size(), 4U);
}

TEST(Profile, RunsThroughItsKnots) {
    EXPECT_DOUBLE_EQ(Profile(3)(0.7), 3);
    EXPECT_NEAR((Profile{2, 6})(0.25), 3, 1e-9);
    const Profile curve{0, 1, 4, 2, 0};
    EXPECT_NEAR(curve(0.25), 1, 0.02);
    EXPECT_NEAR(curve(0.5), 4, 0.02);
    EXPECT_EQ(curve(1.4), curve(1));
    EXPECT_NEAR(curve.times(2).greatest(), 2 * curve.greatest(), 1e-12);
}

TEST(Random, RepeatsItselfForANameAndDiffersForAnother) {
    Random a("day_001_raisin"), b("day_001_raisin"), c("day_002_safran");
    double sum = 0;
    int alike = 0;
    for (int k = 0; k < 1000; ++k) {
        const double x = a.uniform();
        EXPECT_EQ(x, b.uniform());
        alike += x == c.uniform() ? 1 : 0;
        EXPECT_GE(x, 0);
        EXPECT_LT(x, 1);
        sum += x;
    }
    EXPECT_EQ(alike, 0);
    EXPECT_NEAR(sum / 1000, 0.5, 0.05);
}

} // namespace tambrelle::engraver
