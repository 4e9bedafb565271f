#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace tambrelle {

/// Where the floating label stands: in the right corner beside the bar. All in the coordinates of one screen.
struct LabelPlacement {
    QRect screen;    ///< the whole of it
    QRect available; ///< what the window manager says that bars leave free
    QRect bar;       ///< the bar that holds the item, which the window manager may not know; empty for none

    /// The upper left corner of a label of this size.
    [[nodiscard]] QPoint place(QSize label) const;
};

} // namespace tambrelle
