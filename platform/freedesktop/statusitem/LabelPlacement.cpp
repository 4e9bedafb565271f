#include "platform/freedesktop/statusitem/LabelPlacement.h"

#include <algorithm>

namespace tambrelle {

namespace {

/// Distance from the edges of the free area, logical pixels.
constexpr int cornerGap = 8;

} // namespace

QPoint LabelPlacement::place(QSize label) const {
    QRect free = available;
    bool atBottom = screen.bottom() - available.bottom() > available.top() - screen.top();
    const QRect obstacle = bar.intersected(screen);
    if (obstacle.width() >= obstacle.height() && !obstacle.isEmpty()) {
        atBottom = obstacle.center().y() > screen.center().y();
        if (atBottom)
            free.setBottom(std::min(free.bottom(), obstacle.top() - 1));
        else
            free.setTop(std::max(free.top(), obstacle.bottom() + 1));
    } else if (!obstacle.isEmpty() && obstacle.center().x() > screen.center().x()) {
        free.setRight(std::min(free.right(), obstacle.left() - 1));
    }
    return {free.right() + 1 - cornerGap - label.width(),
            atBottom ? free.bottom() + 1 - cornerGap - label.height() : free.top() + cornerGap};
}

} // namespace tambrelle
