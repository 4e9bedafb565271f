#pragma once

#include <QFont>
#include <QImage>
#include <QSize>
#include <QString>

class QPainter;

namespace tambrelle {

/// An emoji as the emoji font shows it, kept drawn: the font holds compressed pictures, and to unpack one
/// takes longer than all else that is drawn of the line.
class EmojiPicture final {
public:
    EmojiPicture(const QString& emoji, int pixelSize);

    [[nodiscard]] const QString& emoji() const { return text; }
    /// Logical pixels.
    [[nodiscard]] QSize size() const { return room; }

    /// Draws it with its upper left corner at `corner`, as sharp as the painter's device can show it.
    void draw(QPainter& painter, QPoint corner);

private:
    void drawAt(double ratio);

    QString text;
    QFont font;
    QSize room;
    QImage picture; ///< For the device's ratio that it was last drawn at; null before.
};

} // namespace tambrelle
