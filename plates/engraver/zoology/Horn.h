#pragma once

#include "plates/engraver/Plate.h"
#include "plates/engraver/Profile.h"

namespace tambrelle::engraver {

/// Horns, tusks and antlers: a tapering tube, smooth or ringed.
struct HornForm {
    Palette palette = palettes::horn;
    /// Rings from the base up; they thin out towards the tip.
    int rings = 0;
    /// Palette of the tip's last third (the dark tips of cattle).
    std::optional<Palette> tip = std::nullopt;
    double tone = 0;
};

/// Draws a horn along the spline through `spine`; `radius` runs from base to tip, in units.
void horn(Plate& plate, const Path& spine, const Profile& radius, const HornForm& form = {});

} // namespace tambrelle::engraver
