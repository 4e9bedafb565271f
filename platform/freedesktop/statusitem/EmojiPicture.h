#pragma once

#include <QColor>
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

    /// Draws it with its upper left corner at `corner`, as sharp as the painter's device can show it; in the
    /// painter's pen where the font has no colours for it.
    void draw(QPainter& painter, QPoint corner);

private:
    struct Look {
        double ratio = 1; ///< device pixels for each logical one
        QColor ink;

        bool operator==(const Look&) const = default;
    };

    void drawPicture();

    QString text;
    QFont font;
    QSize room;
    Look look;      ///< As it was last drawn.
    QImage picture; ///< Null before it is drawn.
};

} // namespace tambrelle
