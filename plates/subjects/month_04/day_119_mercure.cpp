#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Drop.h"

#include <tuple>

using namespace tambrelle::engraver;

// Mercury: a liquid metal; from a tilted glass flask it runs down in a shining thread and splits into round
// beads.
static const Subject subject{
    "day_119_mercure", [](Plate& p) {
        const Palette quicksilver{0xFBFCFD, 0xA3AFBA, 0x2E363E};
        ground(p, 70, 330, 284, 8);
        // The flask: a belly at the upper right, its neck down to the left.
        const Path flask = spline({{166, 158},
                                   {196, 138},
                                   {216, 118},
                                   {224, 90},
                                   {254, 70},
                                   {292, 78},
                                   {312, 108},
                                   {304, 146},
                                   {272, 164},
                                   {240, 158},
                                   {212, 164},
                                   {180, 184}},
                                  12);
        relief(p, flask,
               {.palette = palettes::glass, .bevel = 34, .crossFrom = 1, .coverage = 0.3, .hatchFrom = 0.5});
        const Path filling = closedSpline({{170, 166},
                                           {198, 148},
                                           {222, 136},
                                           {250, 122},
                                           {280, 120},
                                           {308, 122},
                                           {302, 144},
                                           {272, 160},
                                           {240, 154},
                                           {210, 160},
                                           {180, 179}},
                                          10);
        liquid(p, filling, 24, quicksilver);
        Path lip = ellipse({0, 0}, 16.5, 5.5);
        for (Point& q : lip)
            q = rotate(q, 62) + Point{173, 171};
        const Palette rim = palettes::glass;
        p.knockOut(lip, {.halo = 0.2, .shade = 0});
        p.flat(lip, rim, 0.35);
        p.contour(lip, 0.8);
        // The stream and the pool it feeds.
        liquid(p,
               closedSpline({{80, 276},
                             {104, 258},
                             {150, 252},
                             {200, 258},
                             {226, 278},
                             {204, 298},
                             {150, 304},
                             {100, 298}},
                            12),
               24, quicksilver);
        liquid(p,
               closedSpline({{170, 162},
                             {181, 170},
                             {182, 182},
                             {170, 190},
                             {163, 206},
                             {161, 236},
                             {164, 256},
                             {178, 268},
                             {154, 274},
                             {130, 267},
                             {146, 256},
                             {150, 236},
                             {150, 204},
                             {154, 180}},
                            10),
               9, quicksilver);
        p.highlight(ellipse({112, 268}, 13, 3.4));
        p.highlight(closedSpline({{118, 292}, {150, 297}, {184, 291}, {150, 293}}, 8));
        p.highlight(band(spline({{231, 92}, {242, 80}, {258, 76}}),
                         reversed(spline({{234, 96}, {245, 85}, {258, 80}}))));
        for (const auto& [c, rx, ry] :
             {std::tuple{Point{266, 286}, 24.0, 14.0}, std::tuple{Point{236, 306}, 13.0, 8.5},
              std::tuple{Point{304, 302}, 13.0, 8.5}, std::tuple{Point{84, 308}, 12.0, 8.0},
              std::tuple{Point{274, 312}, 8.0, 5.5}, std::tuple{Point{116, 316}, 8.0, 5.5},
              std::tuple{Point{312, 278}, 8.0, 5.5}, std::tuple{Point{196, 314}, 7.0, 5.0}})
            bead(p, c, rx, ry, quicksilver);
    }};
