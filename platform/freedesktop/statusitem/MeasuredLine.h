#pragma once

#include "platform/freedesktop/statusitem/EmojiPicture.h"

#include <QFont>
#include <QHash>
#include <QSize>
#include <QStaticText>
#include <QString>

#include <optional>
#include <vector>

class QPainter;
class QRect;

namespace tambrelle {

/// A line in its two fonts: a leading emoji in colour, the rest in the system's monospaced font, so that the
/// width holds while digits change. To lay it out costs more than to draw it, so what holds for a day is laid
/// out once, and of the last word, which may be the time, each character.
class MeasuredLine final {
public:
    /// Lays `line` out.
    void setText(const QString& line);

    /// What the line takes with its padding, logical pixels; nothing before there is a text.
    [[nodiscard]] QSize size() const;

    /// The least height that leaves it whole, logical pixels: a line of text has air above and below its
    /// letters that may be missing. Nothing before there is a text.
    [[nodiscard]] int leastHeight() const;

    /// Draws it in the painter's pen, in the middle of `place`.
    void draw(QPainter& painter, const QRect& place);

private:
    void useFont(const QFont& font);
    void spell(const QString& word);
    /// Without the padding; there is an emoji.
    [[nodiscard]] int width() const;

    std::optional<EmojiPicture> emoji;
    QFont textFont;
    double space = 0; ///< the width of one, as before the last word; 0 while there is no font
    int lineHeight = 0;
    int inkHeight = 0; ///< twice what letters reach up or down from the middle of the line
    QStaticText beginning;
    std::vector<QStaticText> lastWord;
    QHash<QChar, QStaticText> characters; ///< all that have been shown in this font
};

} // namespace tambrelle
