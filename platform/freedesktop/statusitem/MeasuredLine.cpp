#include "platform/freedesktop/statusitem/MeasuredLine.h"

#include "platform/freedesktop/statusitem/LineStyle.h"

#include <QFontDatabase>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tambrelle {

namespace {

constexpr int bodyPixelSize = 13;

void layOut(QStaticText& part, const QString& text, const QFont& font) {
    part.setTextFormat(Qt::PlainText);
    part.setText(text);
    part.prepare({}, font);
}

} // namespace

void MeasuredLine::setText(const QString& line) {
    const QString leading = line.section(QLatin1Char(' '), 0, 0);
    if (!emoji || emoji->emoji() != leading)
        emoji.emplace(leading, bodyPixelSize);
    // Asked for each time: the desktop's settings may have changed.
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(bodyPixelSize);
    // The space goes with the word: at the end of a text it would take no room.
    const auto lastSpace = std::max(line.lastIndexOf(QLatin1Char(' ')), leading.size());
    const QString before = line.mid(leading.size(), lastSpace - leading.size());
    if (before != beginning.text() || font != textFont)
        layOut(beginning, before, font);
    layOut(lastWord, line.mid(lastSpace), font);
    textFont = font;
    letters = {static_cast<int>(std::ceil(beginning.size().width() + lastWord.size().width())),
               static_cast<int>(std::ceil(lastWord.size().height()))};
}

QSize MeasuredLine::size() const {
    if (!emoji)
        return {0, 0};
    return {emoji->size().width() + letters.width() + 2 * LineStyle::padding,
            std::max(letters.height(), emoji->size().height())};
}

void MeasuredLine::draw(QPainter& painter, const QRect& place) {
    if (!emoji)
        return;
    const QSize picture = emoji->size();
    const auto middle = [&place](QSize size) { return place.top() + (place.height() - size.height()) / 2; };
    const int left = place.left() + (place.width() - picture.width() - letters.width()) / 2;
    emoji->draw(painter, {left, middle(picture)});
    painter.setFont(textFont);
    const QPointF corner(left + picture.width(), middle(letters));
    painter.drawStaticText(corner, beginning);
    painter.drawStaticText(corner + QPointF(beginning.size().width(), 0), lastWord);
}

} // namespace tambrelle
