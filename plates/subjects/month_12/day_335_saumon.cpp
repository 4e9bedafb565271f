#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Fish.h"

using namespace tambrelle::engraver;

// The salmon leaping up the river: silver, small crosses above the lateral line only, adipose fin, narrow
// root of the tail, the old cock's hooked lower jaw.
static const Subject subject{
    "day_335_saumon", [](Plate& p) {
        constexpr Palette steel{0xB6C4CC, 0x6E828E, 0x38464F}, silver{0xF7F8F6, 0xD0D4D4, 0x8B9194},
            pale{0xFFFFFF, 0xF3E8E2, 0xB8A8A2}, finned{0xC2C6C4, 0x858C8C, 0x474E50};
        waterLines(p, 80, 300, 252, 9);
        const Fish salmon({{52, 108}, {92, 74}, {150, 70}, {204, 104}, {240, 160}, {262, 226}},
                          {6, 21, 29, 33, 33, 30, 25, 18, 12, 12}, {7, 19, 27, 31, 32, 30, 25, 18, 12, 12});
        const double end = salmon.length();
        fin(p, salmon,
            {{{end - 8, -11},
              {end + 14, -26},
              {end + 36, -40},
              {end + 34, -18},
              {end + 27, 0},
              {end + 34, 18},
              {end + 36, 40},
              {end + 14, 25},
              {end - 8, 11}},
             {end - 4, -9},
             {end - 4, 9},
             {end + 40, -38},
             {end + 40, 38},
             17,
             finned});
        fin(p, salmon,
            {{{112, -31}, {114, -50}, {122, -62}, {138, -56}, {152, -46}, {154, -27}},
             {114, -30},
             {152, -28},
             {120, -64},
             {156, -46},
             12,
             finned});
        fin(p, salmon,
            {{{206, -21}, {212, -31}, {221, -35}, {224, -29}, {218, -18}},
             {210, -21},
             {216, -19},
             {219, -36},
             {224, -30},
             4,
             finned});
        fin(p, salmon,
            {{{130, 30}, {134, 46}, {144, 54}, {154, 48}, {156, 27}},
             {132, 29},
             {152, 28},
             {140, 55},
             {158, 46},
             8,
             finned});
        fin(p, salmon,
            {{{196, 21}, {202, 38}, {212, 46}, {222, 38}, {220, 14}},
             {198, 21},
             {216, 16},
             {208, 47},
             {224, 36},
             8,
             finned});
        const ReliefSurface skin = salmon.engrave(p, {.back = steel,
                                                      .flank = silver,
                                                      .belly = pale,
                                                      .backTo = 0.26,
                                                      .bellyFrom = 0.7,
                                                      .hatchFrom = 0.44});
        salmon.scales(p, skin, 60, end, 5.4, 0.62);
        for (int k = 0; k < 44; ++k) {
            const double x = 64 + (end - 78) * (k * 0.618034 - std::floor(k * 0.618034)) + p.random.around(3);
            const double v = 0.09 + 0.34 * (k + 0.5) / 44;
            const double y = -salmon.backAt(x) + v * (salmon.backAt(x) + salmon.bellyAt(x)),
                         r = p.random.uniform(1.3, 2.0);
            p.stroke(salmon.path({{x - r, y - r}, {x, y}, {x + r, y + r}}),
                     Pen{.width = 1.1, .swell = 0.1, .fade = 0.1, .wobble = 0});
            p.stroke(salmon.path({{x - r, y + r}, {x, y}, {x + r, y - r}}),
                     Pen{.width = 1.1, .swell = 0.1, .fade = 0.1, .wobble = 0});
        }
        salmon.gillCover(p, 54);
        salmon.lateralLine(p, 58, 0.5);
        fin(p, salmon,
            {{{62, 18}, {70, 14}, {90, 28}, {96, 40}, {78, 40}},
             {63, 18},
             {68, 15},
             {80, 44},
             {96, 34},
             8,
             finned});
        // The kype: lower jaw turned up over the snout.
        const Path jaw = closedSpline(
            salmon.path({{26, 13}, {14, 13}, {2, 10}, {-5, 3}, {-7, -5}, {-3, -6}, {1, 1}, {12, 5}, {28, 7}}),
            8);
        p.knockOut(jaw, {.halo = 0.3, .shade = 0.2});
        p.flat(jaw, silver, 0.42);
        p.contour(jaw, 0.95);
        p.stroke(spline(salmon.path({{0, 0}, {12, 4.5}, {26, 6.5}, {34, 9}}), 6),
                 Pen{.width = 1.3, .swell = 0.1, .fade = 0.4});
        fishEye(p, salmon.at(22, -7), 4.2, Colour{0xD9C06A});
        p.stroke(spline(salmon.path({{7, -6}, {9, -7.4}, {11, -6}}), 6), Pen{.width = 1.1});
        // Spray where it left the water.
        for (int k = 0; k < 26; ++k) {
            const double side = k % 2 == 0 ? -1 : 1, reach = p.random.uniform(14, 46);
            const Point from{258 + side * p.random.uniform(8, 34), 264};
            const Point to = from + Point{side * reach * 0.5, -reach};
            if (k < 14)
                p.stroke(spline({from, lerp(from, to, 0.5) + Point{-side * 4, -4}, to}, 6),
                         Pen{.width = 0.7, .swell = 0.3, .fade = 0.8});
            else
                p.contour(ellipse(to, 1.6, 2.0, 12), 0.6);
        }
    }};
