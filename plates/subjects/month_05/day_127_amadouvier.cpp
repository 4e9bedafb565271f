// Tinder polypore, Fomes fomentarius: hoof-shaped brackets on a birch trunk, banded grey and brown above,
// with a level pale underside of pores.

#include "plates/engraver/Path.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Habit.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_127_amadouvier", [](Plate& p) {
        trunk(p, {204, 352}, {198, 20}, 66, {.bark = TrunkForm::Bark::birch, .palette = palettes::birch});
        // A hoof seen from in front: `w` half its breadth, `h` its height; the brow juts out over the pores.
        const auto hoof = [&](Point at, double w, double h) {
            const auto o = [&](double x, double y) { return at + Point{x * w, y * h}; };
            const Path pores =
                closedSpline({o(-0.98, 0.62), o(-0.5, 0.80), o(0, 0.86), o(0.5, 0.80), o(0.98, 0.62),
                              o(0.8, 0.86), o(0.4, 1.02), o(0, 1.06), o(-0.4, 1.02), o(-0.8, 0.86)});
            relief(p, pores, {.palette = palettes::tan, .bevel = 8, .hatched = false, .tone = 0.3});
            for (int k = 0; k < 120; ++k) {
                const Point dot = o(p.random.around(0.95), p.random.uniform(0.7, 1.05));
                if (contains(pores, dot))
                    p.dot(dot, 0.75);
            }
            const Path brow = closedSpline({o(-0.42, 0), o(0, -0.06), o(0.42, 0), o(0.74, 0.24),
                                            o(1.02, 0.56), o(0.98, 0.70), o(0.5, 0.86), o(0, 0.92),
                                            o(-0.5, 0.86), o(-0.98, 0.70), o(-1.02, 0.56), o(-0.74, 0.24)});
            // How far down the hoof a place lies, along the growth bands: 0 at the top, 1 at the rim.
            const auto band = [=](Point q) {
                const double x = (q.x - at.x) / w, y = (q.y - at.y) / h;
                return y + 0.22 * x * x - 0.02;
            };
            relief(p, brow,
                   {.palette = palettes::grey,
                    .bevel = w * 0.8,
                    .coverage = 0.4,
                    .tint = [=](Point q, double, double tone, Colour colour) {
                        const double d = band(q);
                        const Palette zone = d > 0.66  ? palettes::tan
                                             : d > 0.5 ? palettes::brown
                                                       : palettes::dun;
                        const double wave = 0.5 + 0.5 * maths::cos(d * 44);
                        return mix(colour, ramp(zone, tone * 0.7 + 0.26), d > 0.5 ? 0.85 : 0.35 + 0.5 * wave);
                    }});
            const Plate::Clip inside(p, brow);
            for (const double level : {0.14, 0.27, 0.40, 0.52, 0.63, 0.74}) {
                Path ring;
                for (int i = 0; i <= 24; ++i) {
                    const double x = -1.05 + 2.1 * i / 24;
                    ring.push_back(o(x, level - 0.22 * x * x + 0.02));
                }
                p.stroke(ring, {.width = 1.5, .swell = 0.1, .fade = 0.1, .wobble = 0.7});
            }
        };
        hoof({126, 42}, 62, 72);
        hoof({286, 110}, 72, 88);
        hoof({176, 184}, 112, 134);
    }};
