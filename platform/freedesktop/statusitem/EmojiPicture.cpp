#include "platform/freedesktop/statusitem/EmojiPicture.h"

#include "platform/freedesktop/EmojiFont.h"

#include <QFontMetrics>
#include <QPaintDevice>
#include <QPainter>

#include <cmath>

namespace tambrelle {

namespace {

/// Around the picture, device pixels: a shape may reach beyond the room that its font gives it.
constexpr int margin = 2;

} // namespace

// Many text fonts have a black-and-white sun or snowman of their own, so the emoji must be asked of the emoji
// font by name.
EmojiPicture::EmojiPicture(const QString& emoji, int pixelSize) : text(emoji), font(emojiFamily()) {
    font.setPixelSize(pixelSize);
    const QFontMetrics metrics(font);
    room = {metrics.horizontalAdvance(text), metrics.height()};
}

void EmojiPicture::draw(QPainter& painter, QPoint corner) {
    const Look wanted{painter.device()->devicePixelRatioF(), painter.pen().color()};
    if (picture.isNull() || wanted != look) {
        look = wanted;
        drawPicture();
    }
    // Between two pixels of the device it would be blurred.
    const auto onPixel = [this](int at) { return (std::round(at * look.ratio) - margin) / look.ratio; };
    painter.drawImage(QPointF(onPixel(corner.x()), onPixel(corner.y())), picture);
}

void EmojiPicture::drawPicture() {
    const auto pixels = [this](int length) {
        return static_cast<int>(std::ceil(length * look.ratio)) + 2 * margin;
    };
    picture = QImage(pixels(room.width()), pixels(room.height()), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(look.ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.translate(margin / look.ratio, margin / look.ratio);
    painter.setFont(font);
    painter.setPen(look.ink);
    painter.drawText(QRect(QPoint(0, 0), room),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip, text);
}

} // namespace tambrelle
