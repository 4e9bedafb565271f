#include "ui/panel/PanelPlacement.h"

#include <algorithm>

namespace tambrelle {

namespace {

/// From the click to the nearest edge of the panel, so that the item itself stays in view where no bar
/// keeps its place free.
constexpr int clickClearance = 14;

} // namespace

bool PanelPlacement::isAbove() const {
    return click.y() > available.center().y();
}

int PanelPlacement::room(int least) const {
    const int end = available.y() + available.height();
    const int free =
        isAbove() ? click.y() - clickClearance - available.y() : end - click.y() - clickClearance;
    return free < least ? available.height() : std::min(free, available.height());
}

QRect PanelPlacement::place(QSize panel) const {
    const QSize size = panel.boundedTo(available.size());
    const int left = click.x() - size.width() / 2;
    const int byClick = isAbove() ? click.y() - clickClearance - size.height() : click.y() + clickClearance;
    const int lastLeft = available.x() + available.width() - size.width();
    const int lastTop = available.y() + available.height() - size.height();
    return {QPoint(std::clamp(left, available.x(), lastLeft),
                   std::clamp(top.value_or(byClick), available.y(), lastTop)),
            size};
}

} // namespace tambrelle
