#include "ui/WrappedToolTip.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

namespace tambrelle {

bool WrappedToolTip::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return false;
    auto* widget = static_cast<QWidget*>(watched);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       QStringLiteral("<p>%1</p>").arg(widget->toolTip().toHtmlEscaped()), widget);
    return true;
}

} // namespace tambrelle
