// Six-row barley, Hordeum vulgare: short thick upright ears with grains in six ranks, awns that fan out wide;
// six grains stand at each joint like a star (cut across, below).

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/AwnedEar.h"
#include "plates/engraver/botany/Cereal.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_334_escourgeon", [](Plate& p) {
        const Palette ripe = mix(palettes::straw, palettes::ginger, 0.25);
        const auto uprightEar = [&](const Path& stalk, const Path& spine, double size) {
            stem(p, stalk, {3.2, 2.8}, palettes::straw);
            awnedEar(p, spine,
                     {.joints = 10,
                      .ranks = {-1, 1, -0.5, 0.5, 0},
                      .breadth = 9 * size,
                      .grain = 28 * size,
                      .plumpness = 0.28,
                      .lean = 46,
                      .awn = {112 * size, 96 * size},
                      .awnLean = {42, 30},
                      .scatter = 3,
                      .palette = ripe});
        };
        strapLeaf(p, {182, 328}, -160, 100, 7, 44, palettes::oldleaf);
        strapLeaf(p, {211, 312}, -20, 74, 7, 36, palettes::oldleaf);
        uprightEar({{198, 352}, {172, 312}, {150, 272}}, {{150, 274}, {128, 234}, {104, 186}}, 0.95);
        uprightEar({{204, 352}, {214, 290}, {236, 250}}, {{235, 252}, {260, 200}, {292, 148}}, 1.12);
        earSection(p, {330, 312},
                   {.grains = {-90, -30, 30, 90, 150, 210}, .length = 36, .width = 9.5, .palette = ripe});
    }};
