#pragma once

#include "plates/engraver/Lathe.h"

namespace tambrelle::engraver {

/// The open end of a turned vessel: rim and hollow at the far end of its axis, which must lean to the viewer.
/// `wall` is the rim's breadth in units; `depth` the tone inside.
struct MouthForm {
    Palette palette = palettes::terracotta;
    double wall = 4;
    double depth = 0.82;
    /// What stands within (plaster, tar), up to the rim; absent: empty.
    std::optional<Palette> filling = std::nullopt;
};
void mouth(Plate& plate, const LatheSurface& vessel, const MouthForm& form = {});

} // namespace tambrelle::engraver
