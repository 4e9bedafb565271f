#include "platform/freedesktop/statusitem/DropCount.h"

#include <gtest/gtest.h>

using namespace tambrelle;
using namespace std::chrono_literals;

TEST(DropCountTest, CountsWhatComesOneAfterTheOther) {
    DropCount drops;
    for (int drop = 1; drop <= 6; ++drop)
        EXPECT_EQ(drops.add(drop * DropCount::forgivenAfter), drop);
}

TEST(DropCountTest, BeginsAnewAfterAPause) {
    DropCount drops;
    EXPECT_EQ(drops.add(5ms), 1);
    EXPECT_EQ(drops.add(10ms), 2);
    EXPECT_EQ(drops.add(10ms + DropCount::forgivenAfter + 1ms), 1);
    EXPECT_EQ(drops.add(20ms + DropCount::forgivenAfter), 2);
}
