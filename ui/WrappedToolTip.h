#pragma once

#include <QObject>

namespace tambrelle {

/// Shows the tool tip of the widget that it filters in several lines where it is long; the toolkit breaks
/// only rich text.
class WrappedToolTip final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace tambrelle
