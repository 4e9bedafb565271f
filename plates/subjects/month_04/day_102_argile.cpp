#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Noise.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Vessel.h"
#include "plates/engraver/minerals/Stone.h"

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
        mouth(p, pot, {.rim = 4.5, .palette = clay});
        ReliefForm r;
        r.palette = clay;
        r.highlight = 0.02;
        r.tone = 0.15;
        const Path lump = closedSpline({{58, 290},
                                        {62, 262},
                                        {80, 240},
                                        {92, 214},
                                        {118, 198},
                                        {140, 206},
                                        {162, 212},
                                        {176, 236},
                                        {192, 256},
                                        {200, 290},
                                        {182, 306},
                                        {150, 304},
                                        {122, 314},
                                        {86, 306}},
                                       12);
        const Noise slump(12, 3, 0.5);
        // Where the fingers of a hand went in, and how they were drawn down.
        const Path fingers[] = {
            spline({{98, 244}, {90, 258}, {88, 276}}, 8), spline({{118, 230}, {111, 252}, {112, 284}}, 8),
            spline({{140, 230}, {136, 254}, {139, 286}}, 8), spline({{160, 244}, {159, 262}, {163, 280}}, 8)};
        r.height = [&](Point at, double depth) {
            double z = 44 * std::sqrt(std::max(0.0, 1 - maths::pow(1 - std::min(depth / 44, 1.0), 2))) +
                       2.6 * slump(at.x / 26, at.y / 26);
            for (const Path& finger : fingers) {
                double away = 1e9;
                std::size_t nearest = 0;
                for (std::size_t k = 0; k < finger.size(); ++k)
                    if (length(at - finger[k]) < away) {
                        away = length(at - finger[k]);
                        nearest = k;
                    }
                away /= 6.2;
                // Deepest where the finger first pressed.
                z -= (9.5 - 6.5 * fraction(nearest, finger.size())) * maths::exp(-away * away);
                z += 1.6 * maths::exp(-(away - 1.7) * (away - 1.7) * 4);
            }
            return z;
        };
        relief(p, lump, r);
    }};
