#include "ui/SymbolButton.h"

#include "ui/Spacing.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace tambrelle {

namespace {

constexpr double pressedOpacity = 0.5;

} // namespace

SymbolButton::SymbolButton(const QString& symbolName, const TypeStyle& style, Ink ink, QWidget* parent)
    : QAbstractButton(parent),
      typeStyle(style),
      symbol{symbolName, Symbol::sideFor(scaledByText(style.size))},
      buttonInk(ink) {
    setFont(tambrelle::font(style));
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SymbolButton::setSymbol(const QString& name) {
    if (name == symbol.name)
        return;
    symbol.name = name;
    cached = {};
    update();
}

void SymbolButton::setInk(Ink ink) {
    if (ink == buttonInk)
        return;
    buttonInk = ink;
    update();
}

void SymbolButton::setOpacity(double value) {
    opacity = value;
    update();
}

QSize SymbolButton::sizeHint() const {
    if (text().isEmpty())
        return {symbol.side, symbol.side};
    const QFontMetrics metrics(font());
    return {symbol.side + Spacing::close + metrics.horizontalAdvance(text()),
            std::max(symbol.side, metrics.height())};
}

const QPixmap& SymbolButton::pixmap() {
    const QColor wanted = color(palette(), buttonInk);
    if (cached.isNull() || cachedColor != wanted || cached.devicePixelRatio() != devicePixelRatioF()) {
        cached = drawn(symbol, wanted, devicePixelRatioF());
        cachedColor = wanted;
    }
    return cached;
}

void SymbolButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setOpacity(opacity * (isDown() ? pressedOpacity : 1));
    const QRect square = QStyle::visualRect(layoutDirection(), rect(),
                                            QRect(0, (height() - symbol.side) / 2, symbol.side, symbol.side));
    drawAligned(painter, square.topLeft(), pixmap());
    if (text().isEmpty())
        return;
    painter.setFont(font());
    painter.setPen(color(palette(), buttonInk));
    const QRect words =
        QStyle::visualRect(layoutDirection(), rect(), rect().adjusted(symbol.side + Spacing::close, 0, 0, 0));
    painter.drawText(words, Qt::AlignVCenter | Qt::TextDontClip, text());
}

void SymbolButton::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        event->ignore();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        break;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

} // namespace tambrelle
