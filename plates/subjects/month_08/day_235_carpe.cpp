#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Fish.h"

using namespace tambrelle::engraver;

// The carp: deep golden body in large scales, long dorsal fin, forked tail, small mouth with two barbels at
// each corner.
static const Subject subject{
    "day_235_carpe", [](Plate& p) {
        constexpr Palette gold{0xF4E2B0, 0xCBA458, 0x7A5A28}, olive{0xC6BA7C, 0x86803E, 0x4A4820},
            amber{0xEBCB96, 0xC08A4C, 0x74481F};
        const Fish carp({{40, 170}, {150, 170}, {262, 172}}, {8, 25, 39, 47, 50, 48, 42, 31, 19, 13},
                        {9, 20, 32, 40, 43, 42, 37, 27, 17, 12});
        const double end = carp.length();
        fin(p, carp,
            {{{end - 6, -11},
              {end + 20, -30},
              {end + 46, -44},
              {end + 40, -18},
              {end + 34, 1},
              {end + 40, 20},
              {end + 48, 44},
              {end + 20, 30},
              {end - 6, 11}},
             {end - 4, -9},
             {end - 4, 9},
             {end + 48, -42},
             {end + 50, 42},
             15,
             amber});
        fin(p, carp,
            {{{84, -46}, {88, -66}, {98, -74}, {116, -62}, {150, -56}, {178, -48}, {184, -26}, {140, -38}},
             {88, -44},
             {182, -28},
             {94, -76},
             {184, -50},
             18,
             olive});
        fin(p, carp,
            {{{104, 40}, {108, 62}, {120, 72}, {132, 60}, {136, 38}},
             {106, 38},
             {132, 38},
             {112, 72},
             {134, 62},
             9,
             amber});
        fin(p, carp,
            {{{168, 30}, {174, 54}, {188, 60}, {194, 46}, {192, 20}},
             {170, 28},
             {188, 22},
             {178, 60},
             {196, 48},
             9,
             amber});
        const ReliefSurface skin = carp.engrave(p, {.back = olive, .flank = gold, .belly = palettes::cream});
        carp.scales(p, skin, 58, end - 2, 10.5, 1.25);
        carp.gillCover(p, 50);
        carp.lateralLine(p, 54, 0.52);
        fin(p, carp,
            {{{56, 22}, {64, 18}, {86, 36}, {88, 50}, {70, 44}},
             {57, 22},
             {62, 19},
             {72, 48},
             {90, 42},
             8,
             amber});
        fishEye(p, carp.at(22, -9), 4.6, Colour{0xD8B04A});
        p.stroke(spline(carp.path({{-1, 2}, {7, 5.5}, {13, 3.5}}), 6), Pen{.width = 1.2, .fade = 0.4});
        p.stroke(spline(carp.path({{8, 7}, {6, 14}, {9, 20}}), 6),
                 Pen{.width = 1.5, .swell = 0, .fade = 0.7});
        p.stroke(spline(carp.path({{3, 4}, {-1, 10}, {0, 15}}), 6),
                 Pen{.width = 1.2, .swell = 0, .fade = 0.7});
        p.stroke(spline(carp.path({{9, -9}, {11, -10.5}, {13, -9}}), 6), Pen{.width = 1.1});
    }};
