#include "plates/engraver/Field.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tambrelle::engraver {

TEST(Field, BlurKeepsTheSumAndTheMiddle) {
    for (const double sigma : {0.8, 1.6, 4.0, 9.0}) {
        Field f(121, 121);
        f(60, 60) = 100;
        blur(f, sigma);
        double sum = 0, spread = 0;
        for (int y = 0; y < 121; ++y)
            for (int x = 0; x < 121; ++x) {
                sum += static_cast<double>(f(x, y));
                spread += static_cast<double>(f(x, y)) * (x - 60) * (x - 60);
            }
        EXPECT_NEAR(sum, 100, 0.1) << sigma;
        EXPECT_NEAR(std::sqrt(spread / sum), sigma, 0.5) << sigma;
    }
}

TEST(Field, MeasuresTheDistanceToTheNearestOutside) {
    Field mask(40, 40);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x)
            mask(x, y) = (x - 20) * (x - 20) + (y - 20) * (y - 20) <= 15 * 15 ? 1.0F : 0.0F;
    const Field distance = distanceInside(mask);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x) {
            double nearest = 1e9;
            for (int v = 0; v < 40; ++v)
                for (int u = 0; u < 40; ++u)
                    if (mask(u, v) < 0.5F)
                        nearest = std::min(nearest, std::hypot(u - x, v - y));
            EXPECT_NEAR(static_cast<double>(distance(x, y)), nearest, 1e-3);
        }
}

TEST(Field, GrowsAndShrinksByASquare) {
    Field f(9, 9);
    f(4, 4) = 1;
    const Field grown = dilated(f, 2);
    EXPECT_EQ(grown(2, 6), 1.0F);
    EXPECT_EQ(grown(1, 4), 0.0F);
    EXPECT_EQ(eroded(grown, 2)(4, 4), 1.0F);
    EXPECT_EQ(eroded(grown, 2)(3, 4), 0.0F);
}

} // namespace tambrelle::engraver
