#include "platform/freedesktop/statusitem/EmojiPicture.h"

#include "platform/freedesktop/EmojiFont.h"

#include <QFontMetrics>
#include <QPaintDevice>
#include <QPainter>

#include <cmath>

namespace tambrelle {

// Many text fonts have a black-and-white sun or snowman of their own, so the emoji must be asked of the emoji
// font by name.
EmojiPicture::EmojiPicture(const QString& emoji, int pixelSize) : text(emoji), font(emojiFamily()) {
    font.setPixelSize(pixelSize);
    const QFontMetrics metrics(font);
    room = {metrics.horizontalAdvance(text), metrics.height()};
}

void EmojiPicture::draw(QPainter& painter, QPoint corner) {
    const double ratio = painter.device()->devicePixelRatioF();
    if (picture.devicePixelRatio() != ratio || picture.isNull())
        drawAt(ratio);
    // Between two pixels of the device it would be blurred.
    const QPointF onPixels(std::round(corner.x() * ratio) / ratio, std::round(corner.y() * ratio) / ratio);
    painter.drawImage(onPixels, picture);
}

void EmojiPicture::drawAt(double ratio) {
    const QSizeF pixels = QSizeF(room) * ratio;
    picture = QImage(static_cast<int>(std::ceil(pixels.width())),
                     static_cast<int>(std::ceil(pixels.height())), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setFont(font);
    painter.drawText(QRect(QPoint(0, 0), room), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
}

} // namespace tambrelle
