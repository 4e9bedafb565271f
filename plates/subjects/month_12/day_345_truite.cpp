#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Fish.h"

using namespace tambrelle::engraver;

// The brown trout: slim, blunt head with the gape reaching behind the eye, black and red spots in pale halos,
// adipose fin, tail almost straight.
static const Subject subject{
    "day_345_truite", [](Plate& p) {
        constexpr Palette brown{0xC9AE7A, 0x8A6C3A, 0x4A381C}, gold{0xF4E0A8, 0xD2AC60, 0x86622C},
            pale{0xFFF6DC, 0xF0DDA8, 0xB59558};
        const Fish trout({{34, 186}, {100, 174}, {180, 166}, {266, 172}},
                         {7, 20, 28, 32, 32, 29, 25, 20, 15, 14}, {8, 19, 27, 31, 32, 30, 25, 19, 14, 13});
        const double end = trout.length();
        fin(p, trout,
            {{{end - 8, -13},
              {end + 14, -27},
              {end + 34, -38},
              {end + 36, -16},
              {end + 33, 0},
              {end + 36, 16},
              {end + 34, 38},
              {end + 14, 26},
              {end - 8, 12}},
             {end - 4, -11},
             {end - 4, 11},
             {end + 38, -36},
             {end + 38, 36},
             17,
             brown});
        fin(p, trout,
            {{{102, -30}, {104, -48}, {112, -62}, {128, -58}, {144, -46}, {148, -26}},
             {104, -29},
             {146, -27},
             {110, -64},
             {148, -46},
             12,
             gold});
        fin(p, trout,
            {{{188, -22}, {194, -32}, {203, -36}, {206, -30}, {201, -19}},
             {192, -22},
             {199, -20},
             {201, -37},
             {206, -31},
             4,
             palettes::ginger});
        fin(p, trout,
            {{{118, 29}, {122, 46}, {132, 56}, {142, 50}, {146, 28}},
             {120, 28},
             {142, 27},
             {128, 57},
             {146, 48},
             8,
             palettes::ginger});
        fin(p, trout,
            {{{178, 22}, {184, 40}, {194, 48}, {204, 40}, {204, 15}},
             {180, 22},
             {200, 17},
             {190, 49},
             {206, 38},
             8,
             palettes::ginger});
        const ReliefSurface skin = trout.engrave(p, {.back = brown,
                                                     .flank = gold,
                                                     .belly = pale,
                                                     .backTo = 0.26,
                                                     .bellyFrom = 0.66,
                                                     .hatchFrom = 0.46});
        trout.scales(p, skin, 58, end, 4.0, 0.5);
        // Spots in halos: black towards the back, red along the flank.
        for (int k = 0; k < 74; ++k) {
            const double x = 44 + 186.0 * (k * 0.618034 - std::floor(k * 0.618034)) + p.random.around(3);
            const double v = 0.10 + 0.48 * (k + 0.5) / 74 + p.random.around(0.02);
            const double y = -trout.backAt(x) + v * (trout.backAt(x) + trout.bellyAt(x));
            const bool red = v > 0.36 && k % 2 == 0;
            const double r = (x < 62 ? 1.3 : 2.1) * p.random.uniform(0.8, 1.2);
            const Point c = trout.at(x, y);
            if (x > 40) {
                const Path halo = ellipse(c, r * 1.75, r * 1.6, 20);
                p.flat(halo, red ? Colour{0xD8E2EA} : Colour{0xF7EACB}, 0.85);
                p.flat(ellipse(c, r, r * 0.95, 18), red ? Colour{0xC23420} : Colour{0x3A2618});
                p.ink(ellipse(c, r * (red ? 0.35 : 0.85), r * (red ? 0.35 : 0.8), 14), sepia,
                      red ? 0.5 : 0.9);
            }
        }
        trout.gillCover(p, 52);
        trout.lateralLine(p, 56, 0.5);
        fin(p, trout,
            {{{58, 18}, {66, 14}, {86, 26}, {92, 38}, {74, 38}},
             {59, 18},
             {64, 15},
             {76, 42},
             {92, 32},
             8,
             gold});
        fishEye(p, trout.at(22, -8), 4.8, Colour{0xD8B04A});
        p.stroke(spline(trout.path({{-1, 3}, {12, 6.5}, {24, 7}, {31, 8.5}}), 6),
                 Pen{.width = 1.3, .swell = 0.1, .fade = 0.4});
        p.stroke(spline(trout.path({{16, 4.5}, {25, 4.5}, {32, 7}}), 6), Pen{.width = 0.7});
        p.stroke(spline(trout.path({{8, -6}, {10, -7.4}, {12, -6}}), 6), Pen{.width = 1.1});
    }};
