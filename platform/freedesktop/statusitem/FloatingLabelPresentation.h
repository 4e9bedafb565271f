#pragma once

#include "platform/freedesktop/statusitem/LineLabel.h"
#include "platform/freedesktop/statusitem/Presentation.h"
#include "platform/freedesktop/statusitem/RememberedPlace.h"

#include <QRect>
#include <QTimer>

#include <optional>

class QScreen;

namespace tambrelle {

/// The line in a small window of its own, for desktops whose bar cannot show it or that have none: above the
/// others, out of the focus and of the task bar, in the right corner beside the bar until the user drags it
/// elsewhere, where it stays in later sessions.
class FloatingLabelPresentation final : public Presentation {
    Q_OBJECT

public:
    explicit FloatingLabelPresentation(RememberedPlace remembered, QObject* parent = nullptr);
    ~FloatingLabelPresentation() override;

    void present(const StatusItemContent& content) override;
    /// Keeps out of the way of a bar that covers these device pixels of the X11 screen.
    void keepOff(QRect bar);

private:
    void followPrimaryScreen();
    void followScreen(const QScreen* screen);
    void moveToPlace();
    void followDrag(QPoint corner);
    void remember();
    void showAgainUnlessSeen();

    LineLabel label;
    QTimer seen; ///< Runs until the label has been on a screen.
    int shows = 0;
    QRect bar;
    QMetaObject::Connection freePart; ///< Of the primary screen.
    RememberedPlace remembered;
    std::optional<QPoint> placedByUser; ///< Its upper left corner; absent while it was never dragged.
    bool followed = false; ///< Whether it has been dragged in this session, where that can be seen.
    QTimer resting;        ///< Runs from each step of a drag until it is remembered.
};

} // namespace tambrelle
