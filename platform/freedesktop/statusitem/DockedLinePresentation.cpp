#include "platform/freedesktop/statusitem/DockedLinePresentation.h"

#include "platform/freedesktop/statusitem/LineStyle.h"
#include "platform/freedesktop/statusitem/TrayManager.h"

namespace tambrelle {

DockedLinePresentation::DockedLinePresentation(const TrayManager& tray, QObject* parent)
    : Presentation(parent),
      tray(tray),
      label(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus),
      dock(tray, label) {
    label.setAttribute(Qt::WA_TranslucentBackground);
    label.setInk(tray.foreground().value_or(LineStyle::lightInk));
    connect(&label, &LineLabel::clicked, this, &Presentation::activated);
    connect(&dock, &TrayDock::settled, this, [this](std::optional<int> width) {
        if (!width || *width < needed)
            emit refused();
        else
            adoptInk();
    });
}

void DockedLinePresentation::present(const StatusItemContent& content) {
    const int before = needed;
    needed = LineStyle::sizeOf(content.line).width();
    label.setLine(content.line);
    if (needed != before)
        dock.settle();
}

void DockedLinePresentation::adoptInk() {
    // A bar that names no colour is asked with the eyes: the line takes the ink that reads best there.
    if (tray.foreground())
        return;
    if (const auto ground = tray.groundUnder(static_cast<std::uint32_t>(label.winId())))
        label.setInk(LineStyle::inkOn(*ground));
}

} // namespace tambrelle
