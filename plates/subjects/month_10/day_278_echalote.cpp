// Shallot, Allium ascalonicum: a cluster of coppery teardrop bulbs from one root disc, thin round leaves.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_278_echalote", [](Plate& p) {
        ground(p, 110, 290, 322, 3);
        struct Clove {
            Point base;
            double degrees, length, radius;
        };
        for (const Clove& c : {Clove{{168, 316}, -122, 150, 33}, Clove{{232, 316}, -58, 150, 33},
                               Clove{{184, 322}, -98, 158, 35}, Clove{{220, 324}, -80, 140, 34}}) {
            for (const double a : {-10.0, 10.0, 0.0}) {
                const Point neck = polar(c.base, c.degrees, c.length - 14),
                            tip = polar(neck, c.degrees * 0.6 - 36 + a, 116 + 2 * a);
                tube(p, {neck, lerp(neck, tip, 0.5), tip}, {4.2, 3.6, 0.8},
                     {.palette = palettes::bluegreen, .lines = Lines::along});
            }
            rootlets(p, c.base, 9, 90, 90, 16);
            const double r = c.radius;
            lathe(p, c.base, c.length,
                  {r * 0.15, r * 0.7, r, r * 0.98, r * 0.78, r * 0.46, r * 0.24, r * 0.16},
                  {.direction = c.degrees,
                   .tilt = 0.06,
                   .palette = mix(palettes::copper, palettes::redstem, 0.5),
                   .lines = Lines::along,
                   .highlight = 0.2});
        }
    }};
