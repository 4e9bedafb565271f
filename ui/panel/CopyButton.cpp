#include "ui/panel/CopyButton.h"

#include <QPainter>
#include <QStyle>

namespace tambrelle {

namespace {

constexpr int fadeMilliseconds = 200;

} // namespace

CopyButton::CopyButton(QWidget* parent)
    : SymbolButton(QStringLiteral("doc.on.doc"), TypeScale::caption, Ink::secondary, parent) {
    setAccessibleName(QStringLiteral("Copy"));
    fade.setStartValue(0.0);
    fade.setEndValue(1.0);
    fade.setDuration(fadeMilliseconds);
    fade.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&fade, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& progress) { setOpacity(progress.toDouble()); });
    connect(&fade, &QVariantAnimation::finished, this, [this] { leaving = {}; });
}

QPixmap CopyButton::look() {
    QPixmap pixmap(size() * devicePixelRatioF());
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    render(&pixmap, {}, {}, RenderFlags());
    return pixmap;
}

void CopyButton::paintEvent(QPaintEvent* event) {
    SymbolButton::paintEvent(event);
    if (leaving.isNull())
        return;
    QPainter painter(this);
    painter.setOpacity(1 - fade.currentValue().toDouble());
    // The symbols stand over each other, on the leading side.
    const QSize before = leaving.deviceIndependentSize().toSize();
    painter.drawPixmap(
        QStyle::alignedRect(layoutDirection(), Qt::AlignVCenter | Qt::AlignLeading, before, rect()), leaving);
}

void CopyButton::showCopied(bool copied) {
    fade.stop();
    leaving = {};
    // The style says how long movements may last; none where the user asked the desktop for rest.
    const bool fades =
        isVisible() && QWidget::style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
    setOpacity(1);
    const QPixmap before = fades ? look() : QPixmap();
    setSymbol(copied ? QStringLiteral("checkmark") : QStringLiteral("doc.on.doc"));
    setInk(copied ? Ink::green : Ink::secondary);
    setText(copied ? QStringLiteral("Copied!") : QString());
    updateGeometry();
    if (!fades)
        return;
    leaving = before;
    // The animation announces no value that it begins with.
    setOpacity(0);
    fade.start();
}

} // namespace tambrelle
