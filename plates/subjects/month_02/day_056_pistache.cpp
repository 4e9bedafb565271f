// Pistachio, Pistacia vera: leaves of five round leaflets; clusters of small reddish stone fruits, two
// shells gaping on green kernels.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_056_pistache", [](Plate& p) {
        const LeafKind five{.build = LeafKind::Build::pinnate,
                            .shape = shapes::orbicular,
                            .veins = 6,
                            .petiole = 0.24,
                            .palette = palettes::greygreen,
                            .leaflets = 2,
                            .leafletWidth = 0.4};
        const Path spine = twig(p, {{72, 74}, {150, 56}, {232, 64}, {330, 50}}, {6, 5, 3});
        growLeaf(p, along(spine, 0.1), 108, 130, 44, five, -8);
        growLeaf(p, along(spine, 0.84), 72, 134, 44, five, 8);
        const Path axis{{204, 62}, {200, 120}, {206, 196}};
        stem(p, axis, {2.4, 1.6}, palettes::redstem);
        const Path rachis = spline(axis);
        for (int k = 0; k < 18; ++k) {
            const double q = 0.2 + 0.8 * k / 17.0;
            const double side = k % 2 == 0 ? 1 : -1;
            const Point at = along(rachis, q),
                        tip =
                            at + Point{side * ((k % 4 < 2 ? 58 : 26) * (1.1 - 0.6 * q) + p.random.around(9)),
                                       12 + p.random.around(12)};
            stem(p, {at, lerp(at, tip, 0.6) + Point{0, -3}, tip}, {1.2, 1}, palettes::redstem);
            ball(p, tip, 12,
                 {.palette = mix(mix(palettes::rose, palettes::crimson, 0.3), palettes::leafy,
                                 p.random.uniform(0.1, 0.5)),
                  .direction = -60 - 60 * (side > 0 ? 1 : 0) + p.random.around(30),
                  .squash = 1.4});
        }
        const auto gaping = [&](Point at, double degrees, double size) {
            lathe(p, polar(at, degrees, -20 * size), 44 * size,
                  {6 * size, 16 * size, 19 * size, 17 * size, 9 * size, 1},
                  {.direction = degrees, .tilt = 0.1, .palette = palettes::leafy, .lines = Lines::along});
            for (const double s : {-1.0, 1.0}) {
                const Point foot = polar(at, degrees, -32 * size),
                            tip = polar(polar(at, degrees, 42 * size), degrees + 90 * s, 17 * size);
                const Point belly = polar(polar(at, degrees, 0), degrees + 90 * s, 34 * size),
                            lip = polar(polar(at, degrees, 2 * size), degrees + 90 * s, 10 * size);
                const Path shell = joined(
                    spline({foot, polar(polar(at, degrees, -22 * size), degrees + 90 * s, 24 * size), belly,
                            polar(polar(at, degrees, 28 * size), degrees + 90 * s, 30 * size), tip}),
                    spline({tip, lip, foot}));
                relief(p, shell, {.palette = palettes::cream, .bevel = 12 * size, .tone = 0.08});
            }
        };
        ground(p, 84, 330, 310, 4);
        gaping({142, 272}, -40, 1.05);
        gaping({266, 272}, -142, 1.05);
    }};
