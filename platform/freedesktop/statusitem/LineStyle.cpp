#include "platform/freedesktop/statusitem/LineStyle.h"

#include "platform/freedesktop/EmojiFont.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QPainter>
#include <QString>

#include <algorithm>

namespace tambrelle::LineStyle {

namespace {

constexpr int bodyPixelSize = 13;

/// Perceived lightness (ITU-R BT.601 weights, 0 to 255) from which dark ink reads better than light.
constexpr int lightGround = 128;

/// The line's two runs, each with its font. Many text fonts have a black-and-white sun or snowman of their
/// own, so the emoji must be asked of the emoji font by name.
struct Runs {
    QString emoji;
    QString text;
    QFont emojiFont;
    QFont textFont;

    explicit Runs(const QString& line)
        : emoji(line.section(QLatin1Char(' '), 0, 0)),
          text(line.mid(emoji.size())),
          emojiFont(emojiFamily()),
          textFont(QFontDatabase::systemFont(QFontDatabase::FixedFont)) {
        emojiFont.setPixelSize(bodyPixelSize);
        textFont.setPixelSize(bodyPixelSize);
    }

    [[nodiscard]] int emojiWidth() const { return QFontMetrics(emojiFont).horizontalAdvance(emoji); }
    [[nodiscard]] int textWidth() const { return QFontMetrics(textFont).horizontalAdvance(text); }
};

} // namespace

QSize sizeOf(const QString& line) {
    const Runs runs(line);
    const int height = std::max(QFontMetrics(runs.textFont).height(), QFontMetrics(runs.emojiFont).height());
    return {runs.emojiWidth() + runs.textWidth() + 2 * padding, height};
}

void draw(QPainter& painter, const QRect& place, const QString& line) {
    const Runs runs(line);
    const int start = place.left() + (place.width() - runs.emojiWidth() - runs.textWidth()) / 2;
    const int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;
    QRect rest = place;
    rest.setLeft(start);
    painter.setFont(runs.emojiFont);
    painter.drawText(rest, flags, runs.emoji);
    rest.setLeft(start + runs.emojiWidth());
    painter.setFont(runs.textFont);
    painter.drawText(rest, flags, runs.text);
}

QColor inkOn(const QColor& ground) {
    return qGray(ground.rgb()) < lightGround ? lightInk : darkInk;
}

} // namespace tambrelle::LineStyle
