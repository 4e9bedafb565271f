// Bean, Phaseolus vulgaris: a twining stem with trifoliate leaves, white pea flowers, long pods, kidney-
// shaped seeds.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Pod.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_293_haricot", [](Plate& p) {
        const LeafKind three{.build = LeafKind::Build::trifoliate,
                             .shape = {0.5, 0.95, 1, 0.8, 0.5, 0.2, 0},
                             .veins = 5,
                             .petiole = 0.3};
        tube(p, {{186, 350}, {186, 190}, {188, 36}}, 4, {.palette = palettes::wood, .lines = Lines::along});
        const Path vine = stem(p,
                               {{196, 350},
                                {178, 310},
                                {200, 270},
                                {176, 230},
                                {200, 190},
                                {176, 150},
                                {200, 110},
                                {184, 76},
                                {196, 44}},
                               {3.2, 2.6, 2});
        growLeaf(p, along(vine, 0.3), -168, 132, 32, three, -14);
        growLeaf(p, along(vine, 0.66), -16, 128, 31, three, 14);
        growLeaf(p, along(vine, 0.82), -166, 112, 27, three, -12);
        const auto hang = [&](double q, const Path& spine, bool open) {
            stem(p, {along(vine, q), lerp(along(vine, q), spine.front(), 0.6) + Point{0, -6}, spine.front()},
                 {2, 1.8});
            pod(p, spine,
                {.width = 11,
                 .seeds = 7,
                 .open = open,
                 .palette = palettes::leaf,
                 .seed = palettes::whiteflower,
                 .seedSquash = 1.6});
        };
        hang(0.4, {{232, 216}, {240, 270}, {262, 334}}, false);
        hang(0.44, {{262, 208}, {282, 262}, {318, 312}}, true);
        hang(0.2, {{142, 246}, {132, 290}, {108, 338}}, false);
        for (const auto& [x, y, s] : {std::tuple{238.0, 76.0, 1}, {256.0, 54.0, 1}, {228.0, 48.0, 1}}) {
            stem(p, {along(vine, 0.9), {x - 14, y + 6}, {x, y}}, {1.6, 1.3});
            peaFlower(p, {x, y}, -30, 32, palettes::whiteflower, s);
        }
    }};
