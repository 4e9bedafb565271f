#include "platform/freedesktop/statusitem/Digits.h"

#include <QString>
#include <QTransform>

namespace tambrelle {

namespace {

/// Figures are one high and this wide, measured along the middle of the strokes, as is the gap between two.
constexpr double figureWidth = 0.56;
constexpr double figureGap = 0.38;

QPainterPath zero() {
    QPainterPath path;
    path.addEllipse(QRectF(0, 0, figureWidth, 1));
    return path;
}

QPainterPath one() {
    QPainterPath path(QPointF(0.08, 0.22));
    path.lineTo(0.34, 0);
    path.lineTo(0.34, 1);
    return path;
}

QPainterPath two() {
    const QRectF bow(0, 0, figureWidth, 0.58);
    QPainterPath path;
    path.arcMoveTo(bow, 165);
    path.arcTo(bow, 165, -205);
    path.lineTo(0, 1);
    path.lineTo(figureWidth, 1);
    return path;
}

QPainterPath three() {
    const QRectF upper(0.03, 0, 0.5, 0.47);
    QPainterPath path;
    path.arcMoveTo(upper, 155);
    path.arcTo(upper, 155, -245);
    path.arcTo(QRectF(0, 0.47, figureWidth, 0.53), 90, -245);
    return path;
}

QPainterPath four() {
    QPainterPath path(QPointF(0.42, 1));
    path.lineTo(0.42, 0);
    path.lineTo(0, 0.7);
    path.lineTo(0.6, 0.7);
    return path;
}

QPainterPath five() {
    QPainterPath path(QPointF(0.5, 0));
    path.lineTo(0.08, 0);
    path.lineTo(0.04, 0.45);
    path.arcTo(QRectF(0, 0.36, figureWidth, 0.64), 130, -280);
    return path;
}

QPainterPath six() {
    QPainterPath path(QPointF(0.44, 0));
    path.quadTo(0.02, 0.26, 0, 0.69);
    path.addEllipse(QRectF(0, 0.38, figureWidth, 0.62));
    return path;
}

QPainterPath seven() {
    QPainterPath path(QPointF(0, 0));
    path.lineTo(figureWidth, 0);
    path.lineTo(0.18, 1);
    return path;
}

QPainterPath eight() {
    QPainterPath path;
    path.addEllipse(QRectF(0.03, 0, 0.5, 0.46));
    path.addEllipse(QRectF(0, 0.46, figureWidth, 0.54));
    return path;
}

QPainterPath nine() {
    return QTransform::fromTranslate(figureWidth, 1).rotate(180).map(six());
}

QPainterPath figure(QChar digit) {
    switch (digit.digitValue()) {
    case 0:
        return zero();
    case 1:
        return one();
    case 2:
        return two();
    case 3:
        return three();
    case 4:
        return four();
    case 5:
        return five();
    case 6:
        return six();
    case 7:
        return seven();
    case 8:
        return eight();
    default:
        return nine();
    }
}

} // namespace

QPainterPath numberStrokes(std::int64_t number, const QRectF& place, double pen) {
    QPainterPath strokes;
    double left = 0;
    for (const QChar digit : QString::number(number)) {
        strokes.addPath(figure(digit).translated(left, 0));
        left += figureWidth + figureGap;
    }
    const double height = place.height() - pen;
    const QPainterPath sized = QTransform::fromScale(height, height).map(strokes);
    return sized.translated(place.center() - sized.boundingRect().center());
}

} // namespace tambrelle
