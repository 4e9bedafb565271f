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

constexpr int knobInset = 2;
constexpr double offOpacity = 0.25;
constexpr double focusDistance = 2;

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
    return {metrics.horizontalAdvance(text()) + Spacing::standard + FormMetrics::switchSize.width(),
            std::max(metrics.height(), FormMetrics::switchSize.height())};
}

bool ToggleRow::hitButton(const QPoint& place) const {
    return rect().contains(place);
}

void ToggleRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeading | Qt::TextDontClip, text());

    const QSize size = FormMetrics::switchSize;
    const QRectF track = QStyle::visualRect(layoutDirection(), rect(),
                                            {{width() - size.width(), (height() - size.height()) / 2}, size});
    const double radius = track.height() / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QColor ground = palette().color(isChecked() ? QPalette::Highlight : QPalette::WindowText);
    if (!isChecked())
        ground.setAlphaF(offOpacity);
    painter.setBrush(ground);
    painter.drawRoundedRect(track, radius, radius);

    const double side = track.height() - 2 * knobInset;
    const bool right = isChecked() == (layoutDirection() == Qt::LeftToRight);
    const double left = right ? track.right() - knobInset - side : track.left() + knobInset;
    painter.setBrush(Qt::white);
    painter.drawEllipse(QRectF(left, track.top() + knobInset, side, side));

    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
        painter.drawRoundedRect(track.adjusted(-focusDistance, -focusDistance, focusDistance, focusDistance),
                                radius + focusDistance, radius + focusDistance);
    }
}

} // namespace tambrelle
