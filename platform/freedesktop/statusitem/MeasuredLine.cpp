#include "platform/freedesktop/statusitem/MeasuredLine.h"

#include "platform/freedesktop/statusitem/LineStyle.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tambrelle {

namespace {

constexpr int bodyPixelSize = 13;

QStaticText laidOut(const QString& text, const QFont& font) {
    QStaticText result(text);
    result.setTextFormat(Qt::PlainText);
    result.prepare({}, font);
    return result;
}

} // namespace

void MeasuredLine::setText(const QString& line) {
    const QString leading = line.section(QLatin1Char(' '), 0, 0);
    if (!emoji || emoji->emoji() != leading)
        emoji.emplace(leading, bodyPixelSize);
    // Asked for each time: the desktop's settings may have changed.
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(bodyPixelSize);
    useFont(font);
    const auto lastSpace = std::max(line.lastIndexOf(QLatin1Char(' ')), leading.size());
    const QString before = line.mid(leading.size(), lastSpace - leading.size());
    if (before != beginning.text())
        beginning = laidOut(before, font);
    spell(line.mid(lastSpace + 1));
}

void MeasuredLine::useFont(const QFont& font) {
    if (space > 0 && font == textFont)
        return;
    textFont = font;
    const QFontMetricsF metrics(font);
    space = metrics.horizontalAdvance(QLatin1Char(' '));
    lineHeight = static_cast<int>(std::ceil(metrics.height()));
    const double middle = lineHeight / 2.0;
    const double up = middle - (metrics.ascent() - metrics.capHeight());
    const double down = metrics.ascent() + metrics.descent() - middle;
    inkHeight = static_cast<int>(std::ceil(2 * std::max(up, down)));
    beginning = {};
    characters.clear();
}

void MeasuredLine::spell(const QString& word) {
    lastWord.clear();
    // A character of another script may have its shape from its neighbours.
    const bool standAlone = std::all_of(word.begin(), word.end(), [](QChar c) { return c.unicode() < 0x80; });
    if (!standAlone) {
        lastWord.push_back(laidOut(word, textFont));
        return;
    }
    for (const QChar character : word) {
        auto known = characters.find(character);
        if (known == characters.end())
            known = characters.insert(character, laidOut(character, textFont));
        lastWord.push_back(*known);
    }
}

int MeasuredLine::width() const {
    double letters = beginning.size().width() + space;
    for (const QStaticText& part : lastWord)
        letters += part.size().width();
    return emoji->size().width() + static_cast<int>(std::ceil(letters));
}

QSize MeasuredLine::size() const {
    if (!emoji)
        return {0, 0};
    return {width() + 2 * LineStyle::padding, std::max(lineHeight, emoji->size().height())};
}

int MeasuredLine::leastHeight() const {
    return emoji ? std::max(inkHeight, emoji->size().height()) : 0;
}

void MeasuredLine::draw(QPainter& painter, const QRect& place) {
    if (!emoji)
        return;
    const QSize picture = emoji->size();
    // Downwards, as there may be less room than the line is high.
    const auto middle = [&place](int height) {
        return place.top() + static_cast<int>(std::floor((place.height() - height) / 2.0));
    };
    const int left = place.left() + (place.width() - width()) / 2;
    emoji->draw(painter, {left, middle(picture.height())});
    painter.setFont(textFont);
    QPointF at(left + picture.width(), middle(lineHeight));
    painter.drawStaticText(at, beginning);
    at.rx() += beginning.size().width() + space;
    for (const QStaticText& part : lastWord) {
        painter.drawStaticText(at, part);
        at.rx() += part.size().width();
    }
}

} // namespace tambrelle
