#include "ui/settings/ToggleRow.h"

#include "ui/Spacing.h"
#include "ui/settings/FormMetrics.h"

#include <QFontMetrics>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>

namespace tambrelle {

namespace {

/// The place of a row's content; the focus is drawn around it.
QRect content(const QWidget& row) {
    constexpr int outset = FormMetrics::focusOutset;
    return row.rect().adjusted(outset, outset, -outset, -outset);
}

} // namespace

ToggleRow::ToggleRow(const QString& label, QWidget* parent) : QCheckBox(label, parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

void ToggleRow::showState(bool on) {
    const QSignalBlocker blocker(this);
    setChecked(on);
}

QSize ToggleRow::sizeHint() const {
    const QFontMetrics metrics(font());
    const QSize content(metrics.horizontalAdvance(text()) + Spacing::standard +
                            FormMetrics::switchSize.width(),
                        std::max(metrics.height(), FormMetrics::switchSize.height()));
    return content + 2 * QSize(FormMetrics::focusOutset, FormMetrics::focusOutset);
}

bool ToggleRow::hitButton(const QPoint& place) const {
    return rect().contains(place);
}

void ToggleRow::paintEvent(QPaintEvent*) {
    const QRect place = content(*this);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeading | Qt::TextDontClip, text());
    const QRect track = QStyle::alignedRect(layoutDirection(), Qt::AlignVCenter | Qt::AlignTrailing,
                                            FormMetrics::switchSize, place);
    painter.setRenderHint(QPainter::Antialiasing);
    drawSwitch(painter, track);
    if (hasFocus())
        drawFocus(painter, track);
}

void ToggleRow::drawSwitch(QPainter& painter, const QRectF& track) const {
    const double radius = track.height() / 2;
    painter.setPen(Qt::NoPen);
    QColor ground = palette().color(isChecked() ? QPalette::Highlight : QPalette::WindowText);
    if (!isChecked())
        ground.setAlphaF(static_cast<float>(FormMetrics::switchOffOpacity));
    painter.setBrush(ground);
    painter.drawRoundedRect(track, radius, radius);

    constexpr double inset = FormMetrics::switchKnobInset;
    const double side = track.height() - 2 * inset;
    const bool right = isChecked() == (layoutDirection() == Qt::LeftToRight);
    const double left = right ? track.right() - inset - side : track.left() + inset;
    painter.setBrush(palette().color(QPalette::HighlightedText));
    painter.drawEllipse(QRectF(left, track.top() + inset, side, side));
}

void ToggleRow::drawFocus(QPainter& painter, const QRectF& track) const {
    constexpr double distance = FormMetrics::focusDistance + FormMetrics::focusLineWidth / 2.0;
    const QRectF ring = track.adjusted(-distance, -distance, distance, distance);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::Highlight), FormMetrics::focusLineWidth));
    painter.drawRoundedRect(ring, ring.height() / 2, ring.height() / 2);
}

} // namespace tambrelle
