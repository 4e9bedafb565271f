// Peach, Prunus persica: a velvety globe with a seam and a red cheek, narrow toothed leaves; a half with its
// furrowed stone.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/StoneFruit.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_022_peche", [](Plate& p) {
        const Path bough = twig(p, {{72, 86}, {150, 64}, {240, 70}, {322, 52}}, {5.4, 4.2, 2.4});
        const LeafKind lance{.shape = shapes::lance, .margin = serrate(14, 0.1), .veins = 9, .petiole = 0.08};
        for (const auto& [q, degrees, size] : {std::tuple{0.04, 112.0, 104.0},
                                               {0.2, -128.0, 74.0},
                                               {0.42, -70.0, 66.0},
                                               {0.7, -46.0, 84.0},
                                               {0.8, 66.0, 112.0},
                                               {0.98, 40.0, 84.0}})
            growLeaf(p, along(bough, q), degrees, size, 15, lance, 8);
        const StoneFruitForm form{.skin = mix(palettes::orange, palettes::cream, 0.4),
                                  .cheek = 0xBE2F38,
                                  .blush = 0.85,
                                  .flesh = {0xFBEBC4, 0xE8A56A, 0xB5621C},
                                  .heart = 0xE8A08C,
                                  .stone = mix(palettes::brown, palettes::redstem, 0.3),
                                  .furrows = 44};
        stoneFruit(p, along(bough, 0.42), {172, 162}, 84, form);
        ground(p, 214, 344, 328, 3);
        stoneFruitHalf(p, {278, 272}, 58, form);
    }};
