#pragma once

#include <QColor>
#include <QPixmap>
#include <QString>

class QPainter;
class QPointF;

namespace tambrelle {

/// One of the drawn symbols, such as "chevron.left", by the name of its file.
struct Symbol {
    QString name;
    int side = 0; ///< of its square, in logical pixels

    bool operator==(const Symbol&) const = default;

    /// The side at which a symbol stands well beside text of this pixel size.
    [[nodiscard]] static int sideFor(int textSize);
};

/// Draws the symbol in one colour for a screen of this device pixel ratio. A name without a drawing stops the
/// program.
[[nodiscard]] QPixmap drawn(const Symbol& symbol, const QColor& color, qreal devicePixelRatio);

/// Puts the pixmap at `place` moved to the nearest device pixel, so that its lines stay sharp at fractional
/// scales.
void drawAligned(QPainter& painter, QPointF place, const QPixmap& pixmap);

} // namespace tambrelle
