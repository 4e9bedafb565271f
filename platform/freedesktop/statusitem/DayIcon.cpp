#include "platform/freedesktop/statusitem/DayIcon.h"

#include "platform/freedesktop/statusitem/Digits.h"
#include "platform/freedesktop/statusitem/LineStyle.h"

#include <QPainter>
#include <QPainterPath>
#include <QRectF>

#include <algorithm>

namespace tambrelle {

namespace {

/// Shares of the icon's side.
constexpr double margin = 0.04;
constexpr double corner = 0.14;
constexpr double headHeight = 0.22;
constexpr double digitHeight = 0.5;
constexpr double penWidth = 0.085;
constexpr double edgeWidth = 0.045;

/// In device pixels; thinner strokes turn grey.
constexpr double thinnestPen = 1.3;

} // namespace

QImage dayIcon(std::int64_t day, int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);

    const double unit = side;
    const double edge = std::max(1.0, unit * edgeWidth);
    const QRectF leaf = QRectF(0, 0, unit, unit)
                            .adjusted(unit * margin, unit * margin, -unit * margin, -unit * margin)
                            .adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2);
    QPainterPath outline;
    outline.addRoundedRect(leaf, unit * corner, unit * corner);
    painter.fillPath(outline, LineStyle::paper);
    painter.setClipPath(outline);
    painter.fillRect(QRectF(leaf.left(), leaf.top(), leaf.width(), unit * headHeight), LineStyle::edge);
    painter.setClipping(false);
    painter.strokePath(outline, QPen(LineStyle::ink, edge));

    const QRectF page = leaf.adjusted(0, unit * headHeight - edge, 0, 0);
    const double pen = std::max(thinnestPen, unit * penWidth);
    QRectF figures(0, 0, page.width(), unit * digitHeight);
    figures.moveCenter(page.center());
    painter.strokePath(numberStrokes(day, figures, pen),
                       QPen(LineStyle::ink, pen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    return image;
}

} // namespace tambrelle
