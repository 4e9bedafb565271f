#pragma once

#include "platform/freedesktop/statusitem/DayIconWidget.h"
#include "platform/freedesktop/statusitem/Presentation.h"
#include "platform/freedesktop/statusitem/TrayDock.h"

namespace tambrelle {

/// The square icon as a window of ours inside the bar. Refused where the bar does not take it or leaves it
/// next to nothing.
class DockedIconPresentation final : public Presentation {
    Q_OBJECT

public:
    /// `tray` outlives this object.
    explicit DockedIconPresentation(const TrayManager& tray, QObject* parent = nullptr);

    void present(const StatusItemContent& content) override;

signals:
    /// The icon is in the bar that covers these device pixels of the screen.
    void settledIn(QRect bar);

private:
    void judge(std::optional<QSize> granted);

    const TrayManager& tray;
    DayIconWidget icon;
    TrayDock dock;
    bool docked = false;
};

} // namespace tambrelle
