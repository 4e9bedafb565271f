#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Straw.h"
#include "plates/engraver/carpentry/Weave.h"

using namespace tambrelle::engraver;

// The winnowing basket: a shallow shell of wicker, high at the back, open in front, with two handles; grain
// in it.
static const Subject subject{
    "day_110_van", [](Plate& p) {
        ground(p, 66, 334, 292, 6);
        const auto shell = [](double u, double v) {
            const Point d = direction(180 + 180 * v);
            const double r = 1 - 0.99 * u, drop = u * (2 - u);
            return Point{200 + 128 * r * d.x * (1 - 0.05 * u), 232 + 128 * r * d.y + 44 * drop};
        };
        // The basket's lip in front, flat on the ground.
        weave(p,
              {shell,
               [](double u, double v) {
                   const Point d = direction(180 + 180 * v);
                   return maths::clamp01(0.40 - 0.30 * d.x * (1 - u) - 0.16 * d.y * (1 - u) + 0.06 * u);
               }},
              {.rows = 21, .stakes = 19, .bulge = 0.28});
        plait(p, {{72, 234}, {100, 258}, {150, 278}, {200, 284}, {250, 278}, {300, 258}, {328, 234}}, 6);
        Path rim;
        for (int k = 0; k <= 24; ++k)
            rim.push_back(shell(0, k / 24.0));
        plait(p, rim, 6.5);
        plait(p, {{92, 172}, {66, 168}, {58, 196}, {74, 216}}, 5);
        plait(p, {{308, 172}, {334, 168}, {342, 196}, {326, 216}}, 5);
        grains(p, {200, 254}, 66, 17, 190, 4);
        grains(p, {206, 304}, 70, 5, 34, 3.6);
    }};
