#pragma once

#include <QFont>
#include <QSize>
#include <QString>

class QPainter;
class QRect;

namespace tambrelle {

/// A line in its two fonts: a leading emoji in colour, the rest in the system's monospaced font, so that the
/// width holds while digits change. Measured once, which costs more than to draw it.
class MeasuredLine final {
public:
    explicit MeasuredLine(const QString& line);

    /// What the line takes with its padding, logical pixels.
    [[nodiscard]] QSize size() const;

    /// Draws it in the painter's pen, in the middle of `place`.
    void draw(QPainter& painter, const QRect& place) const;

private:
    QString emoji;
    QString text;
    QFont emojiFont;
    QFont textFont;
    int emojiWidth = 0;
    int textWidth = 0;
    int height = 0;
};

} // namespace tambrelle
