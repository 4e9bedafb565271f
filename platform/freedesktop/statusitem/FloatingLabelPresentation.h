#pragma once

#include "platform/freedesktop/statusitem/LineLabel.h"
#include "platform/freedesktop/statusitem/Presentation.h"

namespace tambrelle {

/// The line in a small window of its own, for desktops whose bar cannot show it or that have none: above the
/// others, out of the focus and of the task bar, in the upper right corner until the user drags it elsewhere.
class FloatingLabelPresentation final : public Presentation {
    Q_OBJECT

public:
    explicit FloatingLabelPresentation(QObject* parent = nullptr);

    void present(const StatusItemContent& content) override;

private:
    void moveToCorner();

    LineLabel label;
    bool placedByUser = false;
};

} // namespace tambrelle
