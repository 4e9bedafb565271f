#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>

namespace tambrelle {

/// Where a panel opens: by the click, wholly inside the part of the screen that bars leave free. All in the
/// screen coordinates of one screen.
struct PanelPlacement {
    QPoint click;
    QRect available; ///< what bars leave free of the click's screen
    /// The upper edge of a panel that is open: it stays, so that a button does not leave the pointer that
    /// clicks it again and again.
    std::optional<int> top;

    /// How tall the panel may be: without covering the click, or where that does not leave `least`, as tall
    /// as the screen.
    [[nodiscard]] int room(int least) const;

    /// The panel's rectangle: centred under the click, above it in the lower half of the screen, and only as
    /// tall as the screen has room for.
    [[nodiscard]] QRect place(QSize panel) const;

private:
    [[nodiscard]] bool isAbove() const;
};

} // namespace tambrelle
