#pragma once

#include "platform/freedesktop/statusitem/LineLabel.h"
#include "platform/freedesktop/statusitem/Presentation.h"
#include "platform/freedesktop/statusitem/TrayDock.h"

namespace tambrelle {

/// The line as a window of ours inside the bar. Refused where the bar grants it less than the line needs.
class DockedLinePresentation final : public Presentation {
    Q_OBJECT

public:
    /// `tray` outlives this object.
    explicit DockedLinePresentation(const TrayManager& tray, QObject* parent = nullptr);

    void present(const StatusItemContent& content) override;

private:
    void judge(std::optional<QSize> granted);
    void setAir(int vertical, int horizontal);
    void adoptInk();

    const TrayManager& tray;
    LineLabel label;
    TrayDock dock;
    /// How tall the label is: as its text, as the bar's row, or as its text for good.
    enum class Fit { natural, asTallAsTheRow, given } fit = Fit::natural;
};

} // namespace tambrelle
