#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Stone.h"
#include "plates/engraver/minerals/Vessel.h"

using namespace tambrelle::engraver;

// Clay: a wet lump that bears the marks of four fingers, and a pot just thrown from it upon the potter's
// wheel.
static const Subject subject{
    "day_102_argile", [](Plate& p) {
        const Palette clay{0xE9B795, 0xB8734C, 0x713C24};
        ground(p, 66, 336, 298, 6);
        lathe(p, {250, 282}, 10, 78, {.tilt = 0.3, .palette = palettes::wood, .lines = Lines::along});
        const LatheSurface pot =
            lathe(p, {250, 270}, 142, {38, 46, 58, 64, 60, 46, 33, 31, 37},
                  {.tilt = 0.3, .palette = clay, .texture = [](double u, double, double tone) {
                       return tone + 0.13 * maths::sin(u * 92); // the fingers' grooves
                   }});
        mouth(p, pot, {.palette = clay, .wall = 4.5});
        ReliefForm r;
        r.palette = clay;
        r.creases = false;
        const Path lump = closedSpline({{66, 286},
                                        {72, 250},
                                        {92, 226},
                                        {124, 214},
                                        {156, 220},
                                        {182, 242},
                                        {194, 276},
                                        {186, 304},
                                        {140, 314},
                                        {88, 310}},
                                       12);
        r.height = [](Point at, double depth) {
            double z = 46 * std::sqrt(std::max(0.0, 1 - maths::pow(1 - std::min(depth / 46, 1.0), 2)));
            // Four fingers drawn through the wet clay: furrows with raised lips.
            for (int k = 0; k < 4; ++k) {
                const Point a{96.0 + 20 * k, 238.0 - 3.0 * (k == 1 || k == 2)}, b{90.0 + 23 * k, 290};
                const double t = maths::clamp01(dot(at - a, b - a) / dot(b - a, b - a));
                const double away = length(at - lerp(a, b, t)) / 7.0;
                z += -8.5 * maths::exp(-away * away) + 2.4 * maths::exp(-(away - 1.6) * (away - 1.6) * 3);
            }
            return z;
        };
        relief(p, lump, r);
    }};
