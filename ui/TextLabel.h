#pragma once

#include "ui/Ink.h"
#include "ui/TypeScale.h"

#include <QWidget>

#include <vector>

namespace tambrelle {

/// What becomes of a text that is wider than its place.
struct TextFit {
    enum class Overflow : std::uint8_t {
        whole, ///< it is never wider: the place has to be as wide as the text
        wrap,
        shrink, ///< in smaller type, and elided where that would become too small
    };

    Overflow overflow = Overflow::whole;
    int lines = 0; ///< the most lines of a wrapped text, the last one elided; 0 for as many as it takes

    [[nodiscard]] static constexpr TextFit wrapped(int lines = 0) {
        return {.overflow = Overflow::wrap, .lines = lines};
    }
    [[nodiscard]] static constexpr TextFit elided() { return wrapped(1); }
    [[nodiscard]] static constexpr TextFit shrunk() { return {.overflow = Overflow::shrink}; }
};

/// A text of the panel, set in a style and an ink. Assistive technology reads the whole text, also what is
/// elided.
class TextLabel final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    TextLabel(const TypeStyle& style, Ink ink, TextFit fit = {}, QWidget* parent = nullptr);

    [[nodiscard]] const QString& text() const { return shownText; }
    /// Repaints only when the text differs, and lays out anew only when its size does.
    void setText(const QString& text);

    /// Where the text stands in a place wider than itself; leading is the default.
    void setAlignment(Qt::Alignment alignment);

    [[nodiscard]] const TypeStyle& style() const { return typeStyle; }
    [[nodiscard]] Ink ink() const { return textInk; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Line {
        QString text;
        qreal ascent = 0;
        qreal height = 0;
        qreal width = 0;
    };
    /// The text as it is set in a width.
    struct Setting {
        int width = -1;
        QFont font;
        std::vector<Line> lines;

        [[nodiscard]] QSize size() const;
    };

    [[nodiscard]] const Setting& setIn(int width) const;
    [[nodiscard]] Setting wrapped(int width) const;
    [[nodiscard]] Setting shrunk(int width) const;
    [[nodiscard]] QFont shrunkFont(double part) const;

    TypeStyle typeStyle;
    Ink textInk;
    TextFit fit;
    QFont plainFont;
    Qt::Alignment alignment = Qt::AlignLeading;
    QString shownText;
    mutable Setting natural;
    mutable Setting current;
};

} // namespace tambrelle
