#pragma once

#include "platform/freedesktop/statusitem/LineLabel.h"
#include "platform/freedesktop/statusitem/Presentation.h"

#include <QTimer>

namespace tambrelle {

class TrayManager;

/// The line as a window of ours inside the bar. Refused where the bar grants it less than the line needs.
class DockedLinePresentation final : public Presentation {
    Q_OBJECT

public:
    /// `tray` outlives this object.
    explicit DockedLinePresentation(const TrayManager& tray, QObject* parent = nullptr);

    void present(const StatusItemContent& content) override;

private:
    void dock();
    void checkGrantedWidth();

    const TrayManager& tray;
    LineLabel label;
    QTimer check;
    bool docked = false;
};

} // namespace tambrelle
