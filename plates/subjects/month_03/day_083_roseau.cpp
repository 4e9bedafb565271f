// Reed, Phragmites australis: strap leaves to both sides of tall canes, a big feathery purplish panicle
// that nods; water below.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Maths.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Cereal.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_083_roseau", [](Plate& p) {
        waterLines(p, 80, 320, 334, 8);
        const auto cane = [&](const Path& spine, double plume, double side) {
            const Path curve = spline(spine);
            for (int k = 0; k < 4; ++k) {
                const double q = 0.14 + 0.13 * k, s = k % 2 == 0 ? side : -side;
                strapLeaf(p, along(curve, q), -90 + s * 38, 118 - 8.0 * k, 6, 24,
                          k % 2 == 0 ? palettes::leaf : palettes::leafy);
            }
            tube(p, spine, {4, 3.4, 2.4, 1.2}, {.palette = palettes::stem, .lines = Lines::along});
            for (const double q : {0.14, 0.27, 0.4, 0.53}) {
                const Point at = along(curve, q);
                p.stroke({at + Point{-4, 0}, at + Point{0, 1.4}, at + Point{4, 0}}, {.width = 1.1});
            }
            const Palette plumes = mix(palettes::plum, palettes::fawn, 0.55);
            for (int k = 0; k < 17; ++k) {
                const double q = 0.6 + 0.4 * k / 16.0;
                const Point at = along(curve, q);
                const double way = angleAlong(curve, q), s = k % 2 == 0 ? 1 : -1;
                const double reach = plume * (0.5 + 0.9 * maths::sin(maths::pi * (0.12 + 0.8 * k / 16.0)));
                const Point bend = polar(at, way + s * 26, reach * 0.55),
                            tip = polar(bend, way + s * 44 + side * 16, reach * 0.55) + Point{0, 6};
                const Path arm = spline({at, bend, tip});
                p.stroke(arm, {.width = 0.8, .swell = 0, .colour = palettes::plum.dark});
                for (int j = 0; j < 17; ++j) {
                    const double t = 0.12 + 0.88 * j / 16.0;
                    const double turn = (j % 2 == 0 ? 1 : -1) * (26 + p.random.around(14));
                    leaflet(
                        p, along(arm, t),
                        polar(along(arm, t), angleAlong(arm, t) + turn, 12 + p.random.around(2)),
                        {.width = 1.5, .palette = plumes, .contour = 0.3, .hatched = false, .midrib = false});
                }
            }
        };
        cane({{176, 338}, {158, 250}, {136, 150}, {100, 74}}, 40, -1);
        cane({{214, 340}, {222, 240}, {228, 140}, {264, 44}}, 48, 1);
    }};
