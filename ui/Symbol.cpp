#include "ui/Symbol.h"

#include "core/Precondition.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

// Resources of a static library are left out unless they are asked for.
static void initializeSymbols() {
    Q_INIT_RESOURCE(symbols);
}

namespace tambrelle {

int Symbol::sideFor(int textSize) {
    constexpr double sideToTextSize = 1.4;
    return static_cast<int>(std::lround(textSize * sideToTextSize));
}

QPixmap drawn(const Symbol& symbol, const QColor& color, qreal devicePixelRatio) {
    initializeSymbols();
    QSvgRenderer renderer(QStringLiteral(":/symbols/%1.svg").arg(symbol.name));
    precondition(renderer.isValid(), "a symbol without a drawing");
    const int side = static_cast<int>(std::lround(symbol.side * devicePixelRatio));
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, image.rect());
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    painter.end();
    image.setDevicePixelRatio(devicePixelRatio);
    return QPixmap::fromImage(std::move(image));
}

void drawAligned(QPainter& painter, QPointF place, const QPixmap& pixmap) {
    const QTransform device = painter.deviceTransform();
    const QPointF wanted = device.map(place);
    const QPointF aligned(std::round(wanted.x()), std::round(wanted.y()));
    painter.drawPixmap(device.inverted().map(aligned), pixmap);
}

} // namespace tambrelle
