// Juniper, Juniperus communis: sharp needles by threes, round blue berries with a bloom in their axils.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_069_genievre", [](Plate& p) {
        const auto shoot = [&](const Path& spine, int nodes, double size) {
            const Path curve = spline(spine);
            for (int k = 0; k < nodes; ++k) {
                const double q = 0.04 + 0.94 * k / (nodes - 1);
                const Point at = along(curve, q);
                const double way = angleAlong(curve, q);
                for (const double f : {-66.0, 64.0, k % 2 == 0 ? 26.0 : -26.0})
                    leaflet(p, at, polar(at, way + f + p.random.around(7), 27 * size),
                            {.width = 2.1,
                             .palette = k % 3 == 0 ? palettes::leaf : palettes::bluegreen,
                             .shape = {0.7, 1, 0.8, 0.45, 0},
                             .contour = 0.55});
            }
            tube(p, spine, {2.8, 2.2, 1.4}, {.palette = palettes::bark});
            for (int k = 0; k < nodes; k += 2) {
                const double q = 0.06 + 0.9 * k / (nodes - 1);
                const Point at = along(curve, q);
                leaflet(p, at, polar(at, angleAlong(curve, q) + p.random.around(40), 24 * size),
                        {.width = 2.1,
                         .palette = palettes::bluegreen,
                         .shape = {0.7, 1, 0.8, 0.45, 0},
                         .contour = 0.55});
            }
        };
        const Path main{{72, 284}, {140, 230}, {210, 178}, {276, 112}, {316, 56}};
        const Path trunkCurve = spline(main);
        shoot({along(trunkCurve, 0.3), {150, 160}, {140, 84}}, 13, 0.95);
        shoot({along(trunkCurve, 0.5), {270, 200}, {340, 180}}, 13, 0.95);
        shoot({along(trunkCurve, 0.16), {190, 276}, {268, 286}}, 13, 0.95);
        shoot({along(trunkCurve, 0.66), {226, 100}, {218, 48}}, 10, 0.9);
        tube(p, main, {5.4, 4.6, 3.4, 2.2, 1.4}, {.palette = palettes::bark, .rough = 0.12});
        shoot({along(trunkCurve, 0.55), {282, 106}, {316, 56}}, 11, 0.95);
        const Palette bloom = mix(palettes::berry, palettes::blue, 0.45);
        const auto berry = [&](Point at, double radius) {
            ball(p, at, radius, {.palette = bloom, .direction = -70});
            for (int k = 0; k < 3; ++k)
                p.stroke({at, polar(at, k * 120.0 - 90, radius * 0.34)}, {.width = 0.9});
        };
        for (const Point& at :
             {Point{152, 206}, Point{178, 218}, Point{134, 250}, Point{212, 190}, Point{232, 142},
              Point{250, 166}, Point{150, 138}, Point{206, 262}, Point{290, 206}, Point{262, 112}})
            berry(at, 12.5);
    }};
