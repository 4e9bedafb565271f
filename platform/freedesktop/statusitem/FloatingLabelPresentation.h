#pragma once

#include "platform/freedesktop/statusitem/LineLabel.h"
#include "platform/freedesktop/statusitem/Presentation.h"

#include <QRect>
#include <QTimer>

#include <array>

namespace tambrelle {

/// The line in a small window of its own, for desktops whose bar cannot show it or that have none: above the
/// others, out of the focus and of the task bar, in the right corner beside the bar until the user drags it
/// elsewhere.
class FloatingLabelPresentation final : public Presentation {
    Q_OBJECT

public:
    explicit FloatingLabelPresentation(QObject* parent = nullptr);

    void present(const StatusItemContent& content) override;
    /// Keeps out of the way of a bar that covers these device pixels of the X11 screen.
    void keepOff(QRect bar);

private:
    void followPrimaryScreen();
    void noteScreens();
    void moveToCorner();
    void showAgainUnlessSeen();

    LineLabel label;
    QTimer seen; ///< Runs until the label has been on a screen.
    int shows = 0;
    QRect bar;
    std::array<QMetaObject::Connection, 2> geometry; ///< Of the primary screen and of its free part.
    bool placedByUser = false;
};

} // namespace tambrelle
