#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Vessel.h"
#include "plates/engraver/minerals/Drop.h"

using namespace tambrelle::engraver;

// Bitumen: black and viscous; it runs from a tilted wooden bucket in a thick thread that coils into a shining
// pool.
static const Subject subject{
    "day_093_bitume", [](Plate& p) {
        const Palette pitch{0xDDD8D2, 0x5A524C, 0x1E1815};
        ground(p, 74, 330, 300, 5);
        liquid(p,
               closedSpline({{74, 288},
                             {100, 266},
                             {150, 258},
                             {204, 262},
                             {250, 272},
                             {262, 290},
                             {228, 306},
                             {180, 302},
                             {140, 314},
                             {96, 308}},
                            12),
               20, pitch, 0.3);
        const LatheSurface bucket =
            lathe(p, {282, 112}, 118, {40, 45, 50, 55},
                  {.direction = 158,
                   .tilt = 0.34,
                   .palette = palettes::wood,
                   .lines = Lines::along,
                   .texture = [](double, double angle, double tone) {
                       return tone + (std::fabs(maths::sin(angle * 6)) < 0.09 ? 0.45 : 0.0);
                   }});
        for (const double u : {0.16, 0.8}) {
            const Path a = bucket.ring(u, 0, 180, 1), b = bucket.ring(u + 0.09, 0, 180, 1);
            Patch hoop(2, a.size());
            for (std::size_t j = 0; j < a.size(); ++j) {
                hoop.point(0, j) = a[j];
                hoop.point(1, j) = b[j];
                hoop.tone(0, j) = hoop.tone(1, j) = 0.3 + 0.5 * fraction(j, a.size());
            }
            p.knockOut(band(a, b), {.halo = 0.2, .shade = 0});
            p.wash(hoop, palettes::iron);
            p.hatch(hoop.transposed(), {.spacing = 1.8});
            p.contour(band(a, b), 0.6);
        }
        mouth(p, bucket, {.rim = 5, .liquid = pitch, .level = 0.04});
        liquid(p,
               closedSpline({{152, 122},
                             {178, 130},
                             {196, 152},
                             {198, 184},
                             {186, 196},
                             {172, 206},
                             {167, 234},
                             {172, 258},
                             {186, 272},
                             {170, 284},
                             {146, 284},
                             {130, 274},
                             {142, 258},
                             {146, 226},
                             {142, 196},
                             {134, 166},
                             {138, 136}},
                            10),
               16, pitch, 0.3);
        for (const double y : {262.0, 270.0, 279.0})
            p.stroke(arc({158, y - 6}, 30 - (y - 262) * 0.2, 9, 20, 165),
                     {.width = 1.1, .colour = Colour{0xE8E4DE}});
    }};
