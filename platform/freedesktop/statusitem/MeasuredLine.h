#pragma once

#include "platform/freedesktop/statusitem/EmojiPicture.h"

#include <QFont>
#include <QSize>
#include <QStaticText>
#include <QString>

#include <optional>

class QPainter;
class QRect;

namespace tambrelle {

/// A line in its two fonts: a leading emoji in colour, the rest in the system's monospaced font, so that the
/// width holds while digits change. To lay it out costs more than to draw it, so each part is kept until it
/// changes, and the time stands apart from the rest, which holds for a day.
class MeasuredLine final {
public:
    /// Lays `line` out.
    void setText(const QString& line);

    /// What the line takes with its padding, logical pixels; nothing before there is a text.
    [[nodiscard]] QSize size() const;

    /// Draws it in the painter's pen, in the middle of `place`.
    void draw(QPainter& painter, const QRect& place);

private:
    std::optional<EmojiPicture> emoji;
    QStaticText beginning;
    QStaticText lastWord;
    QFont textFont;
    QSize letters; ///< both texts side by side
};

} // namespace tambrelle
