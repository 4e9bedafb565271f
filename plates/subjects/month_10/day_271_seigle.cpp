// Rye, Secale cereale: long slender ears that nod over like a bow, grey-green to straw, bristling with short
// awns.

#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Cereal.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_271_seigle", [](Plate& p) {
                                 const Palette hoary = mix(palettes::straw, palettes::greygreen, 0.5);
                                 const auto ryeEar = [&](const Path& stalk, const Path& spine, double size) {
                                     Path whole = stalk;
                                     whole.insert(whole.end(), spine.begin() + 1, spine.end());
                                     stem(p, whole, {3, 2.6, 2, 1}, hoary);
                                     const Path curve = spline(spine);
                                     constexpr int joints = 21;
                                     for (int k = joints - 1; k >= 0; --k)
                                         for (const double side : {-1.0, 1.0}) {
                                             const double q = (k + (side > 0 ? 0.5 : 0)) / joints,
                                                          way = angleAlong(curve, q);
                                             const double reach = 27 * size * (1 - 0.35 * q * q);
                                             const Point at = along(curve, q),
                                                         tip = polar(at, way + side * 22, reach);
                                             p.stroke(spline({tip, polar(tip, way + side * 16, 16 * size),
                                                              polar(tip, way + side * 24, 38 * size)}),
                                                      {.width = 0.95, .swell = 0, .fade = 0.6, .wobble = 0});
                                             leaf(p, {at, polar(at, way + side * 27, reach * 0.5), tip},
                                                  {.width = reach * 0.2,
                                                   .shape = {0.5, 0.95, 1, 0.8, 0.4, 0},
                                                   .palette = hoary,
                                                   .veins = 0,
                                                   .parallel = true,
                                                   .contour = 0.7,
                                                   .midrib = 0.6});
                                         }
                                 };
                                 strapLeaf(p, {183, 296}, -140, 110, 6, 60, palettes::greygreen);
                                 ryeEar({{190, 354}, {176, 250}, {158, 150}},
                                        {{158, 150}, {140, 96}, {98, 84}, {68, 130}, {60, 196}}, 0.96);
                                 ryeEar({{204, 354}, {206, 250}, {210, 150}},
                                        {{210, 150}, {228, 74}, {284, 58}, {322, 116}, {330, 204}}, 1.12);
                             }};
