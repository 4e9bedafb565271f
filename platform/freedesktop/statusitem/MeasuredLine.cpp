#include "platform/freedesktop/statusitem/MeasuredLine.h"

#include "platform/freedesktop/EmojiFont.h"
#include "platform/freedesktop/statusitem/LineStyle.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace tambrelle {

namespace {

constexpr int bodyPixelSize = 13;

} // namespace

// Many text fonts have a black-and-white sun or snowman of their own, so the emoji must be asked of the emoji
// font by name.
MeasuredLine::MeasuredLine(const QString& line)
    : emoji(line.section(QLatin1Char(' '), 0, 0)),
      text(line.mid(emoji.size())),
      emojiFont(emojiFamily()),
      textFont(QFontDatabase::systemFont(QFontDatabase::FixedFont)) {
    emojiFont.setPixelSize(bodyPixelSize);
    textFont.setPixelSize(bodyPixelSize);
    const QFontMetrics emojiMetrics(emojiFont);
    const QFontMetrics textMetrics(textFont);
    emojiWidth = emojiMetrics.horizontalAdvance(emoji);
    textWidth = textMetrics.horizontalAdvance(text);
    height = std::max(textMetrics.height(), emojiMetrics.height());
}

QSize MeasuredLine::size() const {
    return {emojiWidth + textWidth + 2 * LineStyle::padding, height};
}

void MeasuredLine::draw(QPainter& painter, const QRect& place) const {
    constexpr int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;
    QRect rest = place;
    rest.setLeft(place.left() + (place.width() - emojiWidth - textWidth) / 2);
    painter.setFont(emojiFont);
    painter.drawText(rest, flags, emoji);
    rest.setLeft(rest.left() + emojiWidth);
    painter.setFont(textFont);
    painter.drawText(rest, flags, text);
}

} // namespace tambrelle
