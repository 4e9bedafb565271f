#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Cooperage.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// A barrel lying on chocks: bellied staves, six iron hoops, the bung uppermost in its belly.
static const Subject subject{"day_030_tonneau", [](Plate& p) {
                                 const Axes floor{.origin = {96, 302}, .away = {0.4, -0.25}};
                                 block(p, floor, {10, 26, 0}, {64, 60, 20}, {});
                                 block(p, floor, {134, 26, 0}, {188, 60, 20}, {});
                                 const LatheSurface barrel =
                                     cask(p, {106, 196}, 172, {76, 88, 93, 88, 76},
                                          {.direction = 3,
                                           .tilt = 0.46,
                                           .staves = 34,
                                           .hoops = {0.035, 0.15, 0.275, 0.725, 0.85, 0.965},
                                           .hoopBreadth = 9});
                                 caskHead(p, barrel, {.chime = 6, .boards = 6, .degrees = -82, .tone = 0.40});
                                 const Point bung = barrel.at(0.5, 138);
                                 const Path hole = turned(ellipse(bung, 8, 6), 20, bung);
                                 p.knockOut(hole, {.halo = 0.8, .shade = 0.2});
                                 p.flat(hole, palettes::darkwood, 0.55);
                                 p.contour(hole, 1);
                                 LatheForm cork;
                                 cork.palette = palettes::tan;
                                 cork.direction = -70;
                                 cork.tilt = 0.5;
                                 const LatheSurface plug = lathe(p, bung, 7, {5, 5.6}, cork);
                                 p.flat(plug.ring(1), palettes::tan, 0.1);
                                 p.contour(plug.ring(1), 0.6);
                                 // The tap in the head.
                                 block(p, floor, {34, 8, 0}, {70, 34, 13}, {.tone = 0.04});
                                 block(p, floor, {160, 8, 0}, {196, 34, 13}, {.tone = 0.04});
                                 ground(p, 76, 328, 298, 6);
                             }};
