#pragma once

#include <QColor>

/// How the line looks wherever the application draws it itself.
namespace tambrelle::LineStyle {

/// The panel's parchment, mahogany and brass.
inline constexpr QColor paper(237, 232, 219);
inline constexpr QColor ink(56, 41, 31);
inline constexpr QColor edge(140, 112, 71);
inline constexpr QColor lightInk(255, 255, 255);
inline constexpr QColor darkInk(20, 20, 20);

/// Space between the text and the ends of the line, logical pixels.
inline constexpr int padding = 4;

/// The ink that reads best on `ground`.
[[nodiscard]] QColor inkOn(const QColor& ground);

} // namespace tambrelle::LineStyle
