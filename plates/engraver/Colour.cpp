#include "plates/engraver/Colour.h"

#include "plates/engraver/Maths.h"

namespace tambrelle::engraver {

Colour ramp(const Palette& palette, double tone, double highlight) {
    constexpr double lift = 0.12; // watercolour over paper, never body colour
    const double t = maths::clamp01(tone);
    const Colour stage =
        t < 0.5 ? mix(palette.light, palette.middle, t * 2) : mix(palette.middle, palette.dark, t * 2 - 1);
    const Colour lifted = mix(stage, white, lift);
    return mix(lifted, white, (1 - maths::smooth(0, highlight + 0.06, t)) * 0.85);
}

} // namespace tambrelle::engraver
