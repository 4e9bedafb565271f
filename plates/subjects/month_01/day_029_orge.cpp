// Two-row barley, Hordeum distichum: flat ears that nod on bowed stalks, two rows of grains, and very long
// straight awns that hang with them.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Cereal.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_029_orge", [](Plate& p) {
        const auto noddingEar = [&](const Path& stalk, const Path& spine, double size) {
            Path whole = stalk;
            whole.push_back(spine[1]);
            const Path curve = spline(spine);
            constexpr int joints = 13;
            for (int k = 0; k < joints; ++k)
                for (const double side : {-1.0, 1.0}) {
                    const double q = (k + (side > 0 ? 0.5 : 0)) / joints, way = angleAlong(curve, q);
                    const Point tip = polar(along(curve, q), way + side * 20, 25 * size);
                    // The awns fall in with the ear's tip as a sheaf.
                    const double fall = way + std::clamp(angleAlong(curve, 1) - way, -38.0, 38.0) +
                                        side * (9 - 6 * q) + p.random.around(2);
                    const double reach = (122 - 52 * q) * size;
                    p.stroke(spline({tip, polar(tip, (way + fall) / 2, reach * 0.5),
                                     polar(polar(tip, (way + fall) / 2, reach * 0.5), fall, reach * 0.5)}),
                             {.width = 1, .swell = 0, .fade = 0.6, .wobble = 0.05});
                }
            stem(p, whole, {3, 2.6, 2, 1.2}, palettes::straw);
            for (int k = joints - 1; k >= 0; --k)
                for (const double side : {-1.0, 1.0}) {
                    const double q = (k + (side > 0 ? 0.5 : 0)) / joints, way = angleAlong(curve, q);
                    const Point at = along(curve, q), tip = polar(at, way + side * 24, (29 - 6 * q) * size);
                    leaf(p, {at, polar(at, way + side * 30, 14 * size), tip},
                         {.width = (7.4 - 1.6 * q) * size,
                          .shape = {0.5, 0.92, 1, 0.84, 0.45, 0.06},
                          .palette = palettes::straw,
                          .veins = 0,
                          .parallel = true,
                          .contour = 0.75,
                          .midrib = 0.6});
                }
        };
        strapLeaf(p, {190, 300}, -150, 104, 7, 50, palettes::oldleaf);
        noddingEar({{196, 354}, {188, 250}, {162, 136}}, {{162, 136}, {132, 96}, {92, 128}, {74, 196}}, 1);
        noddingEar({{206, 354}, {210, 250}, {224, 128}}, {{224, 128}, {254, 72}, {304, 104}, {324, 186}},
                   1.12);
    }};
