#pragma once

#include "plates/engraver/Lathe.h"

#include <optional>

namespace tambrelle::engraver {

/// The open far end of a vessel: its rim, the wall within, and what it holds.
struct MouthForm {
    double rim = 4;
    Palette palette = palettes::wood;
    /// Depth of the wall that is drawn, as a share of the vessel's length.
    double depth = 0.5;
    std::optional<Palette> liquid = std::nullopt;
    /// How far below the rim the liquid stands, as a share of the length.
    double level = 0.16;
    /// Joints of staves on the wall within.
    int staves = 0;
};
void mouth(Plate& plate, const LatheSurface& surface, const MouthForm& form = {});

} // namespace tambrelle::engraver
