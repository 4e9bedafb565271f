#include "ui/Ink.h"

#include "core/RawValue.h"
#include "ui/Palette.h"

#include <array>
#include <span>

namespace tambrelle {

namespace {

/// One row an ink: where the palette keeps it, and its colour in each theme.
struct InkRow {
    Ink ink;
    QPalette::ColorRole role;
    QColor light;
    QColor night;
};

QColor faint(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

QColor black(double opacity) {
    return faint(Qt::black, opacity);
}
QColor white(double opacity) {
    return faint(Qt::white, opacity);
}

const std::array<InkRow, 12>& inks() {
    static const std::array<InkRow, 12> rows{{
        {Ink::background, QPalette::Window, Palette::parchment, Palette::mahogany},
        {Ink::primary, QPalette::WindowText, black(0.85), Palette::nightInk},
        // A desktop's usual 50, 26 and 10 % give type of 10 pixels 3.8:1, 1.9:1 and 1.2:1 on these grounds.
        // The faintest here is at 4.5:1, the contrast that WCAG 2 (1.4.3) asks for small text.
        {Ink::secondary, QPalette::Text, black(0.64), white(0.58)},
        {Ink::tertiary, QPalette::PlaceholderText, black(0.59), white(0.53)},
        {Ink::quaternary, QPalette::Mid, black(0.55), white(0.49)},
        {Ink::divider, QPalette::Midlight, black(0.10), white(0.10)},
        {Ink::red, QPalette::BrightText, {184, 28, 20}, {255, 122, 108}},
        {Ink::green, QPalette::LinkVisited, {29, 110, 46}, {104, 214, 126}},
        {Ink::blue, QPalette::Link, {0, 88, 194}, {122, 184, 255}},
        {Ink::focus, QPalette::Highlight, {0, 88, 194}, {122, 184, 255}},
        {Ink::pictureField, QPalette::AlternateBase, Palette::parchment, Palette::agedTan},
        {Ink::pictureOutline, QPalette::Dark, faint(Palette::brass, 0.5), faint(Palette::brass, 0.5)},
    }};
    return rows;
}

/// What stands in the place of the inks of the same name where the user wants more contrast: at least 7:1 for
/// text. The grounds stay.
const std::array<InkRow, 9>& strongInks() {
    static const std::array<InkRow, 9> rows{{
        {Ink::primary, QPalette::WindowText, Qt::black, Qt::white},
        {Ink::secondary, QPalette::Text, black(0.85), white(0.92)},
        {Ink::tertiary, QPalette::PlaceholderText, black(0.80), white(0.87)},
        {Ink::quaternary, QPalette::Mid, black(0.75), white(0.82)},
        {Ink::divider, QPalette::Midlight, black(0.50), white(0.50)},
        {Ink::red, QPalette::BrightText, {128, 16, 12}, {255, 188, 180}},
        {Ink::green, QPalette::LinkVisited, {16, 74, 28}, {150, 236, 168}},
        {Ink::blue, QPalette::Link, {0, 58, 130}, {176, 212, 255}},
        {Ink::focus, QPalette::Highlight, {0, 58, 130}, {176, 212, 255}},
    }};
    return rows;
}

void apply(std::span<const InkRow> rows, AppTheme theme, QPalette& palette) {
    for (const InkRow& row : rows)
        palette.setColor(row.role, theme == AppTheme::sepiaNight ? row.night : row.light);
}

} // namespace

QPalette panelPalette(AppTheme theme, Contrast contrast) {
    QPalette palette;
    apply(inks(), theme, palette);
    if (contrast == Contrast::high)
        apply(strongInks(), theme, palette);
    return palette;
}

QColor color(const QPalette& palette, Ink ink) {
    for (const InkRow& row : inks()) {
        if (row.ink == ink)
            return palette.color(row.role);
    }
    precondition(false, "an ink outside its enumeration");
    return {};
}

} // namespace tambrelle
