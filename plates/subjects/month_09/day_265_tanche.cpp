#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Fish.h"

using namespace tambrelle::engraver;

// The tench: thick-set and olive, every fin rounded, tail hardly forked, scales too small to count under a
// slimy skin, small red eye, one short barbel.
static const Subject subject{
    "day_265_tanche", [](Plate& p) {
        constexpr Palette olive{0xC2C080, 0x7F8440, 0x444A20}, dark{0x9C9E66, 0x5C6232, 0x30361A},
            bronze{0xEBDC9C, 0xBFA04C, 0x77602A}, finned{0x9A9672, 0x605C40, 0x333020};
        const Fish tench({{44, 170}, {150, 168}, {254, 170}}, {9, 25, 37, 44, 46, 42, 35, 29, 24, 22},
                         {9, 20, 31, 38, 41, 40, 34, 28, 23, 21});
        const double end = tench.length();
        fin(p, tench,
            {{{end - 8, -20},
              {end + 16, -34},
              {end + 36, -34},
              {end + 40, -16},
              {end + 37, 0},
              {end + 40, 16},
              {end + 36, 34},
              {end + 16, 33},
              {end - 8, 19}},
             {end - 4, -17},
             {end - 4, 17},
             {end + 42, -34},
             {end + 42, 34},
             17,
             finned});
        fin(p, tench,
            {{{100, -44}, {102, -64}, {114, -82}, {132, -84}, {146, -70}, {150, -38}},
             {102, -42},
             {146, -38},
             {112, -86},
             {150, -72},
             12,
             finned});
        fin(p, tench,
            {{{96, 36}, {96, 58}, {106, 74}, {122, 74}, {132, 60}, {128, 36}},
             {98, 36},
             {124, 36},
             {102, 78},
             {134, 62},
             10,
             finned});
        fin(p, tench,
            {{{158, 34}, {160, 54}, {172, 66}, {186, 62}, {190, 44}, {186, 26}},
             {160, 32},
             {182, 26},
             {166, 68},
             {192, 46},
             10,
             finned});
        const ReliefSurface skin = tench.engrave(p, {.back = dark,
                                                     .flank = olive,
                                                     .belly = bronze,
                                                     .backTo = 0.24,
                                                     .bellyFrom = 0.80,
                                                     .coverage = 0.36,
                                                     .highlight = 0.05});
        tench.scales(p, skin, 52, end, 4.2, 0.85);
        tench.gillCover(p, 47);
        tench.lateralLine(p, 52, 0.5);
        fin(p, tench,
            {{{52, 20}, {62, 16}, {82, 22}, {92, 36}, {84, 50}, {66, 46}},
             {54, 21},
             {60, 17},
             {70, 52},
             {94, 34},
             9,
             finned});
        fishEye(p, tench.at(21, -9), 3.8, Colour{0xC8391E});
        p.stroke(spline(tench.path({{-1, 0}, {7, 4.5}, {14, 2}}), 6), Pen{.width = 1.2, .fade = 0.4});
        p.stroke(spline(tench.path({{12, 4}, {13, 9}, {16, 13}}), 6),
                 Pen{.width = 1.4, .swell = 0, .fade = 0.7});
        p.stroke(spline(tench.path({{9, -9}, {11, -10.5}, {13, -9}}), 6), Pen{.width = 1.1});
    }};
