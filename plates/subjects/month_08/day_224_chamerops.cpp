// Dwarf fan palm, Chamaerops humilis: stiff pleated fans on spiny stalks above a stout trunk wrapped in
// fibres.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Habit.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_224_chamerops", [](Plate& p) {
        const auto fan = [&](Point foot, Point hub, double size, double spread, const Palette& palette) {
            tube(p, {foot, lerp(foot, hub, 0.5) + Point{0, -4}, hub}, {3.6, 2.8},
                 {.palette = palettes::stem});
            const double axis = angleOf(hub - foot);
            for (int k = 0; k < 5; ++k) {
                const Point at = lerp(foot, hub, 0.25 + 0.15 * k);
                p.stroke({at, polar(at, axis + (k % 2 == 0 ? 70 : -70), 7)},
                         {.width = 1.0, .swell = 0, .fade = 0.8});
            }
            const int n = 17;
            for (int k = 0; k < n; ++k) {
                const int from = k / 2;
                const double f = (k % 2 == 0 ? from : n - 1 - from) / (n - 1.0) - 0.5;
                const double reach = size * (1 - 0.5 * f * f * 1.6) * p.random.uniform(0.95, 1.03);
                const double way = axis + f * spread;
                leaf(p, {hub, polar(hub, way, reach * 0.5), polar(hub, way + f * 8, reach)},
                     {.width = size * 0.062,
                      .shape = {0.25, 0.7, 1, 1, 0.6, 0},
                      .palette = palette,
                      .veins = 0,
                      .parallel = true,
                      .contour = 0.65,
                      .midrib = 0.8,
                      .shade = 0.12,
                      .halo = 0.3});
            }
            ball(p, hub, 3.4, {.palette = palettes::stem});
        };
        ground(p, 110, 292, 338, 5);
        fan({196, 236}, {142, 214}, 84, 205, palettes::bluegreen);
        fan({204, 236}, {258, 214}, 84, 205, palettes::bluegreen);
        fan({196, 232}, {152, 156}, 88, 205, palettes::leaf);
        fan({204, 232}, {250, 156}, 88, 205, palettes::leaf);
        trunk(p, {200, 336}, {200, 226}, 25, {.palette = palettes::darkwood});
        for (int k = 0; k < 170; ++k) {
            const double y = p.random.uniform(226, 334), x = 200 + p.random.around(25);
            const double out = (x - 200) / 25;
            p.stroke(
                {{x, y},
                 {x + out * 4 + p.random.around(4), y - 7},
                 {x + out * 11 + p.random.around(6), y - 14}},
                {.width = 0.75, .swell = 0, .fade = 0.8, .colour = k % 3 == 0 ? Colour(0x8A6030) : sepia});
        }
        fan({200, 234}, {200, 136}, 100, 215, palettes::leafy);
    }};
