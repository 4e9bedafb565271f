#include "platform/freedesktop/statusitem/FloatingLabelPresentation.h"

#include "platform/freedesktop/statusitem/LineStyle.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

namespace tambrelle {

namespace {

/// Distance from the edges of the free area, and the air above and below the text, logical pixels.
constexpr int cornerGap = 8;
constexpr int verticalPadding = 3;

constexpr Qt::WindowFlags windowFlags =
    Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus;

} // namespace

FloatingLabelPresentation::FloatingLabelPresentation(QObject* parent)
    : Presentation(parent), label(windowFlags) {
    label.setContentsMargins(LineStyle::padding, verticalPadding, LineStyle::padding, verticalPadding);
    label.setPaper(LineStyle::paper, LineStyle::edge);
    label.setInk(LineStyle::ink);

    connect(&label, &LineLabel::clicked, this, &Presentation::activated);
    connect(&label, &LineLabel::dragged, this, [this] {
        placedByUser = true;
        label.windowHandle()->startSystemMove();
    });
    const QScreen* screen = QGuiApplication::primaryScreen();
    connect(screen, &QScreen::availableGeometryChanged, this, [this] { moveToCorner(); });
}

void FloatingLabelPresentation::present(const StatusItemContent& content) {
    label.setLine(content.line);
    moveToCorner();
    label.show();
}

void FloatingLabelPresentation::moveToCorner() {
    if (placedByUser)
        return;
    const QRect free = QGuiApplication::primaryScreen()->availableGeometry();
    label.move(free.right() + 1 - cornerGap - label.width(), free.top() + cornerGap);
}

} // namespace tambrelle
