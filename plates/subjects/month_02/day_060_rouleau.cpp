#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Cooperage.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The field roller: a thick log bound with iron that turns on pins in a frame with two shafts.
static const Subject subject{"day_060_rouleau", [](Plate& p) {
                                 // The far side of the frame, and the shafts that run back from it.
                                 pole(p, {{92, 224}, {112, 160}, {160, 70}}, {7, 6.5, 4.5});
                                 LatheForm log;
                                 log.direction = 4;
                                 log.tilt = 0.42;
                                 log.palette = palettes::wood;
                                 log.lines = Lines::along;
                                 log.crossed = true;
                                 const LatheSurface roller = lathe(p, {100, 234}, 196, 56, log);
                                 {
                                     const Plate::Clip clip(p, roller.outline);
                                     for (int k = 0; k < 26; ++k) {
                                         const double a = p.random.uniform(10, 170),
                                                      u = p.random.uniform(0.02, 0.7);
                                         p.stroke({roller.at(u, a), roller.at(u + 0.12, a + 1),
                                                   roller.at(u + p.random.uniform(0.18, 0.3), a)},
                                                  Pen{.width = 0.5, .swell = 0.4, .fade = 0.4});
                                     }
                                 }
                                 hoop(p, roller, 0.05, {.breadth = 9});
                                 hoop(p, roller, 0.95, {.breadth = 9});
                                 const Path end = roller.ring(1);
                                 p.knockOut(end, {.halo = 0, .shade = 0});
                                 face(p, end,
                                      {.tone = 0.26,
                                       .palette = palettes::wood,
                                       .lines = 70,
                                       .contour = 0.9,
                                       .gradient = 0.12,
                                       .halo = 0});
                                 for (const double q : {0.28, 0.46, 0.63, 0.8}) { // year rings
                                     const Point c = centroid(end);
                                     Path ring;
                                     for (const Point e : end)
                                         ring.push_back(lerp(c, e, q));
                                     p.contour(ring, {.width = 0.5, .wobble = 0.5});
                                 }
                                 const Point pin = centroid(end);
                                 sawnPole(p, {pin, pin + Point{22, 3}}, 7, palettes::iron);
                                 pole(p, {pin + Point{14, 10}, {296, 176}, {262, 76}}, {7.5, 7, 4.8});
                                 pole(p, {{121, 140}, {205, 142}, {288, 146}}, 5.5);
                                 pole(p, {{142, 102}, {208, 102}, {272, 104}}, 4);
                                 ground(p, 70, 340, 286, 7);
                             }};
