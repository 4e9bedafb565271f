#pragma once

#include <QPainterPath>
#include <QRectF>

#include <cstdint>

namespace tambrelle {

/// The number as strokes of a pen `pen` wide whose ink fills at most `place` in height, centred in it. Our
/// own figures, so that an icon of one number loads no font: that costs more time and memory than all else
/// that the program does at its start. `number` is 0 or greater.
[[nodiscard]] QPainterPath numberStrokes(std::int64_t number, const QRectF& place, double pen);

} // namespace tambrelle
