// Watercress, Nasturtium officinale: a rooting sprawl in water, pinnate leaves of round leaflets with the
// largest at the end, small white flowers of four petals.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_047_cresson", [](Plate& p) {
                                 waterLines(p, 50, 350, 290, 10);
                                 const LeafKind round{.build = LeafKind::Build::pinnate,
                                                      .shape = shapes::orbicular,
                                                      .margin = wavy(4, 0.06),
                                                      .veins = 3,
                                                      .petiole = 0.22,
                                                      .palette = palettes::darkleaf,
                                                      .leaflets = 2,
                                                      .leafletWidth = 0.32};
                                 const auto shoot = [&](const Path& spine, bool flowering) {
                                     const Path curve = spline(spine);
                                     for (const double q : {0.1, 0.2, 0.3})
                                         rootlets(p, along(curve, q), 4, 90, 70, 26);
                                     for (int k = 0; k < 3; ++k) {
                                         const double q = 0.3 + 0.26 * k;
                                         const double way = angleAlong(curve, q) + (k % 2 == 0 ? 62 : -62);
                                         growLeaf(p, along(curve, q), way, 70 - 5.0 * k, 21 - 1.5 * k, round,
                                                  k % 2 == 0 ? -12 : 12);
                                     }
                                     stem(p, spine, {4, 3.6, 2.6});
                                     if (flowering)
                                         corymb({.flower = flowers({.petals = 4,
                                                                    .length = 14,
                                                                    .width = 8.4,
                                                                    .baseAngle = 70,
                                                                    .tipAngle = 88,
                                                                    .shape = shapes::orbicular,
                                                                    .palette = palettes::whiteflower,
                                                                    .tilt = 62,
                                                                    .eye = 2.4,
                                                                    .washLift = 0}),
                                                 .count = 8,
                                                 .spread = 160,
                                                 .length = 34})(p, curve);
                                     else
                                         growLeaf(p, curve.back(), -70, 52, 21, round);
                                 };
                                 shoot({{86, 296}, {130, 280}, {158, 220}, {146, 150}}, false);
                                 shoot({{316, 296}, {276, 282}, {250, 214}, {262, 140}}, false);
                                 shoot({{150, 306}, {192, 286}, {204, 200}, {204, 104}}, true);
                             }};
