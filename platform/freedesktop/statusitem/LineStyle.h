#pragma once

#include <QColor>
#include <QSize>

class QPainter;
class QRect;
class QString;

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

/// What `line` takes with its padding, logical pixels. Set in the system's monospaced font, so that the width
/// holds while digits change.
[[nodiscard]] QSize sizeOf(const QString& line);

/// Draws `line` in the painter's pen, in the middle of `place`: its leading emoji in colour, the rest
/// monospaced.
void draw(QPainter& painter, const QRect& place, const QString& line);

/// The ink that reads best on `ground`.
[[nodiscard]] QColor inkOn(const QColor& ground);

} // namespace tambrelle::LineStyle
