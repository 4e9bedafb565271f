#include "platform/freedesktop/statusitem/FloatingLabelPresentation.h"

#include "platform/freedesktop/statusitem/LineStyle.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

namespace tambrelle {

namespace {

/// Distance from the edges of the free area, and the frame's width, logical pixels.
constexpr int cornerGap = 8;
constexpr int frameWidth = 1;
constexpr int verticalPadding = 3;

constexpr Qt::WindowFlags windowFlags =
    Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus;

} // namespace

FloatingLabelPresentation::FloatingLabelPresentation(QObject* parent)
    : Presentation(parent), label(windowFlags) {
    label.setContentsMargins(LineStyle::padding, verticalPadding, LineStyle::padding, verticalPadding);
    label.setFrameStyle(QFrame::Box | QFrame::Plain);
    label.setLineWidth(frameWidth);
    QPalette colours = label.palette();
    colours.setColor(QPalette::Window, LineStyle::paper);
    colours.setColor(QPalette::WindowText, LineStyle::ink);
    label.setPalette(colours);
    label.setAutoFillBackground(true);

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
