#pragma once

#include <QColor>

/// The five colours of the panel, in sRGB.
namespace tambrelle::Palette {

inline constexpr QColor parchment{237, 232, 219};
inline constexpr QColor mahogany{56, 41, 31};
inline constexpr QColor agedTan{204, 181, 140};
inline constexpr QColor brass{140, 112, 71};
inline constexpr QColor nightInk{237, 227, 204};

} // namespace tambrelle::Palette
