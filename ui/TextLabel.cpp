#include "ui/TextLabel.h"

#include "ui/TextAccessible.h"

#include <QAccessible>
#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tambrelle {

namespace {

constexpr int unlimitedWidth = QWIDGETSIZE_MAX;

/// The smallest part of its size to which type shrinks before it is elided.
constexpr double smallestShrinkage = 0.6;
constexpr double shrinkageStep = 0.02;

/// A paragraph's last line is never one word alone.
QString withoutWidow(QString text) {
    constexpr QChar noBreakSpace{0x00A0};
    const qsizetype lastSpace = text.lastIndexOf(QLatin1Char(' '));
    if (lastSpace > 0 && text.lastIndexOf(QLatin1Char(' '), lastSpace - 1) > 0)
        text[lastSpace] = noBreakSpace;
    return text;
}

qreal naturalWidth(const QString& text, const QFont& font) {
    return QFontMetricsF(font).horizontalAdvance(text);
}

constexpr char32_t emojiPresentation = 0xFE0F;
constexpr char32_t zeroWidthJoiner = 0x200D;

/// The font without its fallbacks where it has every letter of the text: to look for fallbacks that nothing
/// needs takes a good part of the time in which the panel opens.
QFont sufficient(const QFont& font, const QString& text) {
    QFont alone = font;
    alone.setStyleStrategy(QFont::NoFontMerging);
    const QFontMetricsF metrics(alone);
    for (const char32_t letter : text.toUcs4()) {
        const bool drawsNothing = letter == emojiPresentation || letter == zeroWidthJoiner;
        if (!drawsNothing && !metrics.inFontUcs4(letter))
            return font;
    }
    return alone;
}

} // namespace

TextLabel::TextLabel(const TypeStyle& style, Ink ink, TextFit fit, QWidget* parent)
    : QWidget(parent), typeStyle(style), textInk(ink), fit(fit) {
    installTextAccessibility();
    const bool severalLines = fit.overflow == TextFit::Overflow::wrap && fit.lines != 1;
    QSizePolicy policy(QSizePolicy::Preferred, severalLines ? QSizePolicy::Preferred : QSizePolicy::Fixed);
    policy.setHeightForWidth(severalLines);
    setSizePolicy(policy);
}

void TextLabel::setText(const QString& text) {
    if (text == shownText)
        return;
    const QSize before = shownText.isEmpty() ? QSize() : sizeHint();
    shownText = text;
    plainFont = sufficient(tambrelle::font(typeStyle), text);
    natural.width = current.width = -1;
    if (sizeHint() != before)
        updateGeometry();
    update();
    if (QAccessible::isActive()) {
        QAccessibleEvent event(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
}

void TextLabel::setAlignment(Qt::Alignment value) {
    alignment = value;
    update();
}

QSize TextLabel::sizeHint() const {
    if (natural.width < 0)
        natural = wrapped(unlimitedWidth);
    return natural.size();
}

QSize TextLabel::minimumSizeHint() const {
    const QSize whole = sizeHint();
    if (fit.overflow == TextFit::Overflow::whole || shownText.isEmpty())
        return whole;
    if (fit.overflow == TextFit::Overflow::shrink)
        return {static_cast<int>(std::ceil(naturalWidth(shownText, shrunkFont(smallestShrinkage)))),
                whole.height()};
    if (fit.lines == 1)
        return {static_cast<int>(std::ceil(naturalWidth(QStringLiteral("…"), plainFont))), whole.height()};
    qreal widest = 0;
    for (const QString& word : shownText.split(QLatin1Char(' ')))
        widest = std::max(widest, naturalWidth(word, plainFont));
    return {std::min(whole.width(), static_cast<int>(std::ceil(widest))), whole.height()};
}

bool TextLabel::hasHeightForWidth() const {
    return sizePolicy().hasHeightForWidth();
}

int TextLabel::heightForWidth(int width) const {
    return setIn(width).size().height();
}

QSize TextLabel::Setting::size() const {
    qreal widest = 0;
    qreal height = 0;
    for (const Line& line : lines) {
        widest = std::max(widest, line.width);
        height += line.height;
    }
    return {static_cast<int>(std::ceil(widest)), static_cast<int>(std::ceil(height))};
}

const TextLabel::Setting& TextLabel::setIn(int width) const {
    const QSize whole = sizeHint();
    if (width >= whole.width())
        return natural;
    if (current.width != width)
        current = fit.overflow == TextFit::Overflow::shrink ? shrunk(width) : wrapped(width);
    return current;
}

TextLabel::Setting TextLabel::wrapped(int width) const {
    Setting setting{.width = width, .font = plainFont, .lines = {}};
    // It has no font of its own yet, and one more to load takes time.
    if (shownText.isEmpty())
        return setting;
    const QString text = fit.lines == 1 ? shownText : withoutWidow(shownText);
    QTextLayout layout(text, plainFont);
    QTextOption option;
    option.setWrapMode(fit.lines == 1 ? QTextOption::NoWrap : QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const bool last = fit.lines > 0 && static_cast<int>(setting.lines.size()) + 1 == fit.lines;
        QString words = last ? text.mid(line.textStart()) : text.mid(line.textStart(), line.textLength());
        if (last && width != unlimitedWidth)
            words = QFontMetricsF(plainFont).elidedText(words, Qt::ElideRight, width);
        setting.lines.push_back({.text = words.trimmed(),
                                 .ascent = line.ascent(),
                                 .height = std::ceil(line.ascent() + line.descent()),
                                 .width = std::min<qreal>(line.naturalTextWidth(), width)});
        if (last)
            break;
    }
    layout.endLayout();
    return setting;
}

QFont TextLabel::shrunkFont(double part) const {
    QFont font = plainFont;
    font.setPixelSize(std::max(1, static_cast<int>(plainFont.pixelSize() * part)));
    font.setLetterSpacing(QFont::AbsoluteSpacing, plainFont.letterSpacing() * part);
    return font;
}

TextLabel::Setting TextLabel::shrunk(int width) const {
    Setting setting = natural;
    setting.width = width;
    Line& line = setting.lines.front();
    // Tracking goes down with the size, so the width does in proportion, but for the rounding of each letter.
    for (double part = width / line.width;; part -= shrinkageStep) {
        const bool smallest = part <= smallestShrinkage;
        setting.font = shrunkFont(smallest ? smallestShrinkage : part);
        line.width = naturalWidth(shownText, setting.font);
        if (smallest || line.width <= width)
            break;
    }
    if (line.width > width) {
        line.text = QFontMetricsF(setting.font).elidedText(shownText, Qt::ElideRight, width);
        line.width = naturalWidth(line.text, setting.font);
    }
    return setting;
}

void TextLabel::paintEvent(QPaintEvent*) {
    const Setting& setting = setIn(width());
    QPainter painter(this);
    painter.setFont(setting.font);
    painter.setPen(color(palette(), textInk));
    const Qt::Alignment visual = QStyle::visualAlignment(layoutDirection(), alignment);
    const qreal slack = height() - setting.size().height();
    qreal top = (alignment & Qt::AlignVCenter) ? std::floor(slack / 2) : 0;
    for (const Line& line : setting.lines) {
        const qreal free = width() - line.width;
        const qreal left = (visual & Qt::AlignHCenter) ? free / 2 : (visual & Qt::AlignRight) ? free : 0;
        painter.drawText(QPointF(std::max<qreal>(0, left), top + std::ceil(line.ascent)), line.text);
        top += line.height;
    }
}

} // namespace tambrelle
