// Dogbane, Apocynum: opposite oblong leaves on red stems, cymes of small pink bells, long paired pods, one
// split and letting go its seeds with tufts of silk.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Pod.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_338_apocyn", [](Plate& p) {
        const LeafKind blade{.shape = shapes::elliptic, .veins = 7, .petiole = 0.06};
        const Path main{{150, 352}, {158, 270}, {148, 180}, {156, 96}};
        const Path curve = spline(main);
        for (int k = 0; k < 5; ++k)
            for (const double side : {-1.0, 1.0})
                growLeaf(p, along(curve, 0.1 + 0.18 * k), -90 + side * (66 - 5 * k), 92 - 8.0 * k,
                         20 - 1.6 * k, blade, side * 14);
        // Twin pods hang from one stalk.
        const Point fork{236, 116};
        stem(p, {along(curve, 0.8), {186, 112}, {214, 102}, fork}, {3, 2.8}, palettes::redstem);
        const Path split{fork, {270, 170}, {288, 240}, {280, 322}};
        const Path slit = spline(split);
        const auto seed = [&](Point at, double degrees, double size) {
            for (int k = -6; k <= 6; ++k) {
                const double a = degrees + k * 7.0 + p.random.around(3);
                p.stroke(spline({at, polar(at, a - k, size * 0.55), polar(at, a + k * 1.2, size)}),
                         {.width = 0.55, .swell = 0, .fade = 0.5, .wobble = 0});
            }
            leaflet(p, polar(at, degrees, 2), polar(at, degrees + 180, 13),
                    {.width = 3, .palette = palettes::brown, .shape = shapes::elliptic, .tone = 0.3});
        };
        leaf(p, split,
             {.width = 11,
              .shape = {0.3, 0.7, 1, 1, 0.9, 0.6, 0},
              .palette = palettes::fawn,
              .veins = 0,
              .parallel = true});
        leaf(p, {along(slit, 0.2), along(slit, 0.5), along(slit, 0.85)},
             {.width = 6,
              .shape = shapes::elliptic,
              .palette = palettes::cream,
              .veins = 0,
              .parallel = true});
        for (int k = 0; k < 7; ++k)
            leaflet(p, along(slit, 0.76 - 0.08 * k), along(slit, 0.86 - 0.08 * k),
                    {.width = 3, .palette = palettes::brown, .shape = shapes::elliptic, .tone = 0.3});
        for (const auto& [q, x, y, a, size] : {std::tuple{0.3, 24.0, -6.0, -62.0, 44.0},
                                               {0.46, 26.0, 6.0, -34.0, 46.0},
                                               {0.62, 24.0, 22.0, -8.0, 44.0}})
            seed(along(slit, q) + Point{x, y}, a, size);
        seed({308, 96}, -50, 46);
        pod(p, {fork, {232, 180}, {222, 250}, {230, 326}},
            {.width = 7.5, .seeds = 0, .open = false, .palette = palettes::leafy});
        stem(p, main, {3.4, 2.8, 2}, palettes::redstem);
        const FlowerAt little = bells(
            {.length = 22, .radius = 10, .lobes = 5, .palette = palettes::rose, .tilt = 32, .sepals = 5});
        corymb({.flower = little, .count = 9, .spread = 180, .length = 40, .stalk = palettes::redstem})(
            p, curve);
    }};
