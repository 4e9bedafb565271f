#include "platform/freedesktop/statusitem/LineStyle.h"

#include "ui/Palette.h"

#include <gtest/gtest.h>

namespace tambrelle {
namespace {

// Two rooms that may not know each other.
TEST(LineStyleTest, HasThePanelsColours) {
    EXPECT_EQ(LineStyle::paper, Palette::parchment);
    EXPECT_EQ(LineStyle::ink, Palette::mahogany);
    EXPECT_EQ(LineStyle::edge, Palette::brass);
}

} // namespace
} // namespace tambrelle
