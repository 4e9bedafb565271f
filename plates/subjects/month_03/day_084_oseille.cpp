// Sorrel, Rumex acetosa: arrow leaves whose barbs point back, a slim branched spire of reddish round-winged
// fruits.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_084_oseille", [](Plate& p) {
        const auto arrow = [&](const Path& spine, Point tip, double width) {
            const Path stalk = stem(p, spine, {2.2, 1.8}, palettes::redstem);
            const Point from = stalk.back();
            const double way = angleOf(tip - from);
            const Point bend = polar(lerp(from, tip, 0.5), way - 90, 5);
            for (const double s : {-1.0, 1.0})
                leaflet(p, polar(from, way, 12), polar(polar(from, way + 180, 24), way + s * 90, width * 0.9),
                        {.width = width * 0.36, .shape = {0.9, 1, 0.8, 0.5, 0}, .contour = 0.7});
            leaf(p, {polar(from, way, -3), bend, tip},
                 {.width = width, .shape = {0.75, 0.95, 1, 0.9, 0.7, 0.4, 0}, .veins = 6});
        };
        arrow({{198, 318}, {150, 306}, {120, 270}}, {84, 176}, 21);
        arrow({{202, 318}, {250, 306}, {280, 270}}, {316, 176}, 21);
        arrow({{198, 318}, {170, 270}, {156, 226}}, {138, 130}, 20);
        arrow({{202, 318}, {232, 272}, {246, 230}}, {264, 136}, 20);
        const Palette rust = mix(palettes::red, palettes::rose, 0.4);
        herb(p, {.foot = {200, 322},
                 .height = 250,
                 .stems = {0},
                 .stemRadius = 4,
                 .tipRadius = 2,
                 .stemPalette = palettes::redstem,

                 .leaves = 0,
                 .root = RootKind::taproot,
                 .inflorescence = [rust](Plate& plate, const Path& curve) {
                     const auto fruits = [&](const Path& way, double from, int nodes, double size) {
                         for (int k = 0; k < nodes; ++k) {
                             const double q = from + (1 - from) * k / (nodes - 1);
                             for (const double s : {-1.0, 1.0}) {
                                 const double d = angleAlong(way, q) + s * 80 + plate.random.around(16);
                                 const Point at = polar(along(way, q), d, (s == 0 ? 2 : 8) * size);
                                 const Path wing = ellipse(at, 6 * size, 5.4 * size, 20);
                                 plate.knockOut(wing, {.halo = 0.3, .shade = 0.15});
                                 plate.flat(wing, rust, 0.3 + plate.random.around(0.15));
                                 plate.contour(wing, 0.6);
                                 plate.flat(ellipse(at, 2.2 * size, 3.2 * size, 16), rust, 0.85);
                             }
                         }
                     };
                     for (int k = 0; k < 7; ++k) {
                         const double q = 0.52 + 0.06 * k, s = k % 2 == 0 ? 1 : -1;
                         const Point from = along(curve, q), to = polar(from, -90 + s * 42, 70 - 7.0 * k);
                         const Path way = spline({from, lerp(from, to, 0.5) + Point{s * 6, 0}, to});
                         stem(plate, way, {1.4, 1}, palettes::redstem);
                         fruits(way, 0.2, 6 - k / 3, 0.95);
                     }
                     fruits(curve, 0.84, 6, 1);
                 }});
    }};
