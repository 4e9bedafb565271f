#include "ui/panel/CopyButton.h"

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
    if (isVisible())
        fade.start();
    else
        setOpacity(1);
}

} // namespace tambrelle
