// Curled endive, Cichorium endivia: a flat rosette of narrow leaves cut into frizzy lobes, green without,
// blanched to yellow at the heart, with broad white ribs.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_044_endive", [](Plate& p) {
        ground(p, 70, 330, 272, 5);
        const Point heart{200, 214};
        constexpr int leaves = 34;
        for (int k = 0; k < leaves; ++k) {
            const double q = k / (leaves - 1.0), turn = k * 137.5 + 20;
            const Point d = direction(turn);
            const double reach = 148 - 96 * q;
            const Point root = heart + Point{d.x * 10, d.y * 6 + 4};
            const Point tip = heart + Point{d.x * reach, d.y * reach * 0.6 - 10 - 34 * q};
            const Point mid = heart + Point{d.x * reach * 0.52, d.y * reach * 0.28 - 24 - 14 * q};
            const Path spine{root, mid, tip};
            const double width = (27 - 9 * q) * (0.72 + 0.28 * std::fabs(d.x));
            leaf(p, spine,
                 {.width = width,
                  .shape = {0.2, 0.5, 0.85, 1, 0.95, 0.6, 0},
                  .margin = lobed(7, 0.62),
                  .palette = mix(palettes::leaf, mix(palettes::yellow, palettes::leafy, 0.45), q),
                  .veins = 7,
                  .tone = d.y < 0 ? 0.08 : -0.04,
                  .contour = 0.75,
                  .coverage = 0.32,
                  .pucker = 0.3});
            // The frizz: little curls that stand up along the rim.
            const Path rib = spline(spine);
            for (int j = 0; j < 12; ++j) {
                const double u = 0.3 + 0.66 * j / 11.0, side = j % 2 == 0 ? 1 : -1;
                const double way = angleAlong(rib, u);
                const Point at = polar(along(rib, u), way + side * 90, width * 0.2);
                leaflet(p, at, polar(at, way + side * p.random.uniform(30, 80), width * 0.56),
                        {.width = width * 0.2,
                         .palette = mix(palettes::leafy, palettes::cream, 0.3 * q),
                         .shape = {0.5, 0.8, 1, 0.9, 0.5, 0},
                         .tone = 0.02,
                         .contour = 0.5,
                         .hatched = false});
            }
            tube(p, {along(rib, 0), along(rib, 0.45), along(rib, 0.86)}, {4.4 - 2.4 * q, 2.8 - 1.4 * q, 0.7},
                 {.palette = palettes::cream,
                  .lines = Lines::along,
                  .spacing = 3,
                  .contour = 0.5,
                  .shade = 0.1});
        }
        // The blanched heart stands up and hides where the ribs meet.
        for (int k = 0; k < 11; ++k) {
            const double a = -90 + (k * 7 % 11 - 5) * 26.0;
            const Point root = heart + Point{0, 14}, d = direction(a);
            leaf(p, {root, root + Point{d.x * 20, d.y * 14 - 4}, root + Point{d.x * 44, d.y * 30 - 14}},
                 {.width = 12,
                  .shape = {0.3, 0.6, 0.9, 1, 0.9, 0},
                  .margin = lobed(5, 0.5),
                  .palette = mix(palettes::yellow, palettes::cream, 0.5),
                  .veins = 4,
                  .coverage = 0.25,
                  .pucker = 0.3});
        }
    }};
