// Moss: a dense green cushion over a stone, capsules nodding on fine red stalks.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Cryptogam.h"
#include "plates/engraver/minerals/Stone.h"

using namespace tambrelle::engraver;

static const Subject subject{"day_122_mousse", [](Plate& p) {
                                 ground(p, 84, 320, 296, 5);
                                 stone(p,
                                       {{74, 300},
                                        {84, 270},
                                        {120, 246},
                                        {196, 236},
                                        {262, 240},
                                        {304, 256},
                                        {330, 288},
                                        {318, 306},
                                        {240, 312},
                                        {130, 310}},
                                       {.seed = 7, .facets = 8, .rough = 1.6, .depth = 34, .ragged = 3});
                                 mossCushion(p, {200, 262}, 112, 70, 30);
                                 const auto fruit = [&](Point foot, Point top, double side) {
                                     tube(p,
                                          {foot, lerp(foot, top, 0.6) + Point{-side * 6, 0}, top,
                                           top + Point{side * 10, -4}, top + Point{side * 17, 4}},
                                          {1.6, 1.3}, {.palette = palettes::redstem});
                                     lathe(p, top + Point{side * 15, 1}, 34, {3, 7, 8.5, 8, 7, 7.6, 5.5, 1.4},
                                           {.direction = 90 - side * 42,
                                            .palette = mix(palettes::oldleaf, palettes::brown, 0.4),
                                            .lines = Lines::along});
                                 };
                                 fruit({168, 232}, {134, 92}, -1);
                                 fruit({206, 226}, {196, 70}, 1);
                                 fruit({248, 236}, {278, 112}, 1);
                             }};
