// Christmas rose, Helleborus niger: pedate leathery leaves of seven to nine leaflets, large white nodding
// flowers full of stamens, a black root.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_131_ellebore", [](Plate& p) {
                                 for (const double a : {-164.0, -16.0, -136.0, -44.0})
                                     growLeaf(p, {200, 330}, a, 128, 15,
                                              {.build = LeafKind::Build::digitate,
                                               .shape = shapes::obovate,
                                               .margin = serrate(6, 0.12),
                                               .veins = 6,
                                               .petiole = 0.42,
                                               .palette = palettes::darkleaf,
                                               .leaflets = 7,
                                               .leafletWidth = 0.13},
                                              a < -90 ? -4 : 4);
                                 rootlets(p, {200, 334}, 20, 90, 130, 24, 1.4);
                                 const auto rose = [&](const Path& stalk, double degrees, double size) {
                                     stem(p, stalk, {4.4, 3.4}, mix(palettes::stem, palettes::redstem, 0.3));
                                     flower(p, stalk.back(), degrees,
                                            {.petals = 5,
                                             .length = size,
                                             .width = size * 0.52,
                                             .baseAngle = 62,
                                             .tipAngle = 82,
                                             .shape = {0.4, 0.8, 1, 1, 0.75, 0.1},
                                             .palette = palettes::whiteflower,
                                             .tips = mix(palettes::whiteflower, palettes::pink, 0.4),
                                             .tilt = 52,
                                             .eye = size * 0.1,
                                             .eyePalette = palettes::leafy,
                                             .stamens = 30,
                                             .stamenLength = 0.42,
                                             .washLift = 0});
                                 };
                                 rose({{196, 330}, {166, 240}, {140, 160}, {126, 126}}, -122, 52);
                                 rose({{204, 330}, {236, 250}, {262, 190}, {278, 158}}, -48, 50);
                                 rose({{200, 332}, {204, 220}, {200, 140}, {202, 96}}, -84, 58);
                             }};
