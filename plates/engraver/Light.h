#pragma once

#include "plates/engraver/Vector.h"

namespace tambrelle::engraver {

/// Where the light comes from: upper left, over the viewer's shoulder.
inline constexpr Vector3 lightDirection{-0.5011, -0.6214, 0.6013};
/// The direction on the plate in which surfaces turn away from the light.
inline constexpr Point shadeSide{0.63, 0.78};

/// Tone of a surface with the unit normal `n`: 0 lit ... 1 dark, a little lighter again at the shade edge.
inline double toneOf(Vector3 n) {
    const double t = 1 - maths::clamp01(0.10 + 0.95 * dot(n, lightDirection));
    const double back = maths::clamp01(0.75 * n.x + 0.55 * n.y);
    return maths::clamp01(t - 0.22 * back * back * back * (1 - n.z));
}

} // namespace tambrelle::engraver
