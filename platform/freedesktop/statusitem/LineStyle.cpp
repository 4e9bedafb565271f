#include "platform/freedesktop/statusitem/LineStyle.h"

namespace tambrelle::LineStyle {

namespace {

/// Perceived lightness (ITU-R BT.601 weights, 0 to 255) from which dark ink reads better than light.
constexpr int lightGround = 128;

} // namespace

QColor inkOn(const QColor& ground) {
    return qGray(ground.rgb()) < lightGround ? lightInk : darkInk;
}

} // namespace tambrelle::LineStyle
