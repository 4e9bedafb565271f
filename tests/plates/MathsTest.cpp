#include "plates/engraver/Maths.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tambrelle::engraver {

TEST(Maths, AgreesWithTheCLibraryToTenDigits) {
    for (double x = -50; x <= 50; x += 0.37) {
        EXPECT_NEAR(maths::sin(x), std::sin(x), 1e-10) << x;
        EXPECT_NEAR(maths::cos(x), std::cos(x), 1e-10) << x;
        EXPECT_NEAR(maths::tanh(x / 10), std::tanh(x / 10), 1e-10) << x;
        EXPECT_NEAR(maths::exp(x / 5) / std::exp(x / 5), 1, 1e-10) << x;
        EXPECT_NEAR(maths::atan2(x, 3.1), std::atan2(x, 3.1), 1e-10) << x;
        EXPECT_NEAR(maths::atan2(2.3, x), std::atan2(2.3, x), 1e-10) << x;
    }
    for (double x = 0.01; x < 40; x *= 1.3) {
        EXPECT_NEAR(maths::log(x), std::log(x), 1e-10) << x;
        EXPECT_NEAR(maths::pow(x, 1.7) / std::pow(x, 1.7), 1, 1e-9) << x;
    }
}

TEST(Maths, KeepsTheAxesAndTheOrigin) {
    EXPECT_EQ(maths::sin(0), 0);
    EXPECT_EQ(maths::cos(0), 1);
    EXPECT_EQ(maths::pow(0, 0.5), 0);
    EXPECT_EQ(maths::atan2(0, 0), 0);
    EXPECT_NEAR(maths::atan2(0, -1), maths::pi, 1e-12);
}

TEST(Maths, SmoothStepsEitherWay) {
    EXPECT_EQ(maths::smooth(1, 3, 0), 0);
    EXPECT_EQ(maths::smooth(1, 3, 4), 1);
    EXPECT_DOUBLE_EQ(maths::smooth(1, 3, 2), 0.5);
    EXPECT_EQ(maths::smooth(3, 1, 4), 0);
    EXPECT_EQ(maths::smooth(3, 1, 0), 1);
}

} // namespace tambrelle::engraver
