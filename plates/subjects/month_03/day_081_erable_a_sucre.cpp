// Sugar maple, Acer saccharum: autumn-red leaves of five lobes with rounded bays and few long teeth; paired
// keys nearly parallel.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"

#include <vector>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_081_erable_a_sucre", [](Plate& p) {
        const std::vector<Lobe> lobes = {{-104, 0.52}, {-50, 0.88}, {0, 1}, {50, 0.88}, {104, 0.52}};
        const Path spine = twig(p, {{84, 52}, {150, 66}, {224, 58}, {316, 70}}, {5, 4, 2.4});
        const auto maple = [&](double q, Point at, double degrees, double size, const Palette& palette) {
            stem(p, {along(spine, q), lerp(along(spine, q), at, 0.5) + Point{4, 0}, at}, {1.9, 1.6},
                 palettes::redstem);
            palmateLeaf(p, at, degrees, size,
                        {.lobes = lobes,
                         .sinus = 0.42,
                         .teeth = 2,
                         .toothHeight = 7,
                         .palette = palette,
                         .bulge = 0.8});
        };
        maple(0.9, {306, 130}, 58, 82, palettes::autumn);
        maple(0.12, {104, 112}, 116, 96, mix(palettes::autumn, palettes::scarlet, 0.4));
        maple(0.5, {198, 150}, 92, 140, mix(palettes::autumn, palettes::orange, 0.35));
        const auto keys = [&](double q, Point hub) {
            stem(p, {along(spine, q), lerp(along(spine, q), hub, 0.5) + Point{2, 0}, hub}, {1.2, 1});
            samara(p, hub + Point{-1, 0}, 108, 56, 12);
            samara(p, hub + Point{1, 0}, 72, 56, 12);
        };
        keys(0.68, {258, 86});
        keys(0.32, {146, 92});
    }};
