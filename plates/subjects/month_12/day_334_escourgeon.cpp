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
        strapLeaf(p, {174, 328}, -160, 100, 7, 44, palettes::oldleaf);
        strapLeaf(p, {204, 312}, -20, 74, 7, 36, palettes::oldleaf);
        uprightEar({{192, 352}, {164, 312}, {140, 272}}, {{140, 274}, {118, 234}, {94, 186}}, 0.95);
        uprightEar({{198, 352}, {206, 290}, {226, 250}}, {{225, 252}, {248, 200}, {278, 148}}, 1.12);
        earSection(p, {322, 312},
                   {.grains = {-90, -30, 30, 90, 150, 210}, .length = 36, .width = 9.5, .palette = ripe});
    }};
