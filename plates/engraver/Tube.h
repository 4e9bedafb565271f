#pragma once

#include "plates/engraver/Plate.h"
#include "plates/engraver/Profile.h"

namespace tambrelle::engraver {

enum class Lines { none, across, along };

/// A round rod of any bend and taper: stems, twigs, roots, handles, tails.
struct TubeForm {
    Palette palette = palettes::stem;
    Lines lines = Lines::across;
    double spacing = 2.0;
    double tone = 0;
    double coverage = 0.5;
    double hatchFrom = 0.25;
    double contour = 0.65;
    /// How far rings bow, as if the tube's end pointed to the viewer (-1 ... 1).
    double bow = 0.35;
    /// Unevenness of the radius, as a share of it: bark 0.16.
    double rough = 0;
    double shade = 0.30;
    double halo = 0.7;
    double highlight = 0.10;
    /// Draws the far end as a closed disc of this palette's light stage (a sawn or broken end).
    bool cutEnd = false;
};

/// Draws a tube along the spline through `spine`; `radius` runs from its first point to its last. Gives the
/// spine's curve.
Path tube(Plate& plate, const Path& spine, const Profile& radius, const TubeForm& form = {});

/// Green stem and barky twig: tubes with the settings that suit them.
Path stem(Plate& plate, const Path& spine, const Profile& radius, const Palette& palette = palettes::stem);
Path twig(Plate& plate, const Path& spine, const Profile& radius, const Palette& palette = palettes::bark);

} // namespace tambrelle::engraver
