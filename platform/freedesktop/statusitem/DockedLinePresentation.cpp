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
    connect(&dock, &TrayDock::settled, this, &DockedLinePresentation::judge);
}

void DockedLinePresentation::present(const StatusItemContent& content) {
    const int before = label.lineSize().width();
    label.setLine(content.line);
    if (label.lineSize().width() != before)
        dock.settle();
}

void DockedLinePresentation::judge(std::optional<QSize> granted) {
    const QSize needed = label.lineSize();
    if (granted && granted->height() < label.leastHeight()) {
        emit refused();
        return;
    }
    const bool tooNarrow = !granted || granted->width() < needed.width();
    if (!tooNarrow && fit == Fit::natural && granted->width() > needed.width() &&
        granted->height() > needed.height()) {
        // This bar enlarges what is lower than its row, with its proportions. What is as tall has its own
        // width, less what the bar loses in rounding.
        fit = Fit::asTallAsTheRow;
        setAir(granted->height() - needed.height(), 1);
    } else if (tooNarrow && fit == Fit::asTallAsTheRow) {
        // The row has become lower; and not a third time, lest bar and line go on correcting each other.
        fit = Fit::given;
        setAir(0, 0);
    } else if (tooNarrow) {
        emit refused();
    } else {
        adoptInk();
    }
}

void DockedLinePresentation::setAir(int vertical, int horizontal) {
    label.setContentsMargins(0, vertical / 2, horizontal, vertical - vertical / 2);
    label.setLine(label.text());
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
