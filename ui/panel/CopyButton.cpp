#include "ui/panel/CopyButton.h"

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
}

void CopyButton::showCopied(bool copied) {
    setSymbol(copied ? QStringLiteral("checkmark") : QStringLiteral("doc.on.doc"));
    setInk(copied ? Ink::green : Ink::secondary);
    setText(copied ? QStringLiteral("Copied!") : QString());
    updateGeometry();
    fade.stop();
    // The style says how long movements may last; none where the user asked the desktop for rest.
    const bool moves = QWidget::style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
    // The animation announces no value that it begins with.
    setOpacity(isVisible() && moves ? 0 : 1);
    if (isVisible() && moves)
        fade.start();
}

} // namespace tambrelle
