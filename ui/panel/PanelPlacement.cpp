#include "ui/panel/PanelPlacement.h"

#include <algorithm>

namespace tambrelle {

namespace {

/// From the click to the nearest edge of the panel, so that the item itself stays in view where no bar
/// keeps its place free.
constexpr int clickClearance = 14;

} // namespace

QRect PanelPlacement::place(QSize panel) const {
    const QSize size = panel.boundedTo(available.size());
    const bool above = click.y() > available.center().y();
    const int left = click.x() - size.width() / 2;
    const int top = above ? click.y() - clickClearance - size.height() : click.y() + clickClearance;
    const int lastLeft = available.x() + available.width() - size.width();
    const int lastTop = available.y() + available.height() - size.height();
    return {QPoint(std::clamp(left, available.x(), lastLeft), std::clamp(top, available.y(), lastTop)), size};
}

} // namespace tambrelle
