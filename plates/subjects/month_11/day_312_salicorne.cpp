// Glasswort, Salicornia: leafless juicy jointed stems, branched in opposite pairs, on the salt mud.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_312_salicorne", [](Plate& p) {
        waterLines(p, 84, 330, 326, 5);
        const auto jointed = [&](Point from, double degrees, int joints, double size, double radius,
                                 double bend) {
            Point at = from;
            double way = degrees;
            for (int k = 0; k < joints; ++k) {
                const double r = radius * (1 - 0.5 * k / joints);
                const Point end = polar(at, way, size);
                const bool last = k + 1 == joints;
                tube(p, {at, lerp(at, end, 0.5), end, polar(end, way, last ? 3 : 1.5)},
                     {r * 0.72, r * 0.9, r * 1.12, last ? r * 0.3 : r},
                     {.palette = k < joints / 2 ? palettes::leaf
                                                : mix(palettes::leaf, palettes::red, last ? 0.5 : 0.15),
                      .lines = Lines::along,
                      .contour = 0.75,
                      .highlight = 0.18});
                at = end;
                way += bend;
            }
        };
        for (int node = 5; node >= 1; --node) {
            const Point at{200, 332 - node * 36.0};
            for (const double side : {-1.0, 1.0}) {
                const int joints = 9 - node;
                jointed(at + Point{side * 3, 2}, -90 + side * (64 - node * 4), joints, 17, 6.6, -side * 6);
                if (node < 4) {
                    const Point fork = polar(at, -90 + side * (58 - node * 4), 40);
                    jointed(fork, -90 + side * 10, 6 - node, 16, 5.4, side * 2);
                    jointed(polar(at, -90 + side * (60 - node * 4), 56), -90 + side * 96, 5 - node, 15, 5,
                            -side * 10);
                }
            }
        }
        jointed({200, 336}, -90, 8, 35, 9, 0.5);
    }};
