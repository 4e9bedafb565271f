#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Fish.h"

using namespace tambrelle::engraver;

// The tunny: a torpedo, dark blue above and silver below, sickle tail on a hair-thin root, rows of finlets
// behind the fins, two dorsal fins, long pectoral; no scales to see.
static const Subject subject{
    "day_175_thon", [](Plate& p) {
        constexpr Palette blue{0x93A8C0, 0x41587A, 0x1E2C44}, silver{0xF6F8FA, 0xCBD4DC, 0x7F8C9A},
            belly{0xFFFFFF, 0xEDEFEF, 0xAEB6BC}, finned{0x8294A8, 0x485A70, 0x263242};
        const Fish tunny({{26, 172}, {140, 170}, {262, 168}}, {3, 24, 38, 46, 47, 43, 34, 22, 11, 4},
                         {4, 21, 36, 45, 47, 43, 33, 21, 10, 4});
        const double end = tunny.length();
        fin(p, tunny,
            {{{end - 6, -3},
              {end + 8, -26},
              {end + 22, -52},
              {end + 38, -68},
              {end + 27, -38},
              {end + 20, -12},
              {end + 18, 0},
              {end + 20, 12},
              {end + 27, 38},
              {end + 38, 68},
              {end + 22, 52},
              {end + 8, 26},
              {end - 6, 3}},
             {end - 2, -2},
             {end - 2, 2},
             {end + 34, -70},
             {end + 34, 70},
             19,
             finned,
             0.5});
        fin(p, tunny,
            {{{70, -44}, {72, -62}, {80, -70}, {92, -60}, {106, -52}, {122, -46}, {124, -38}},
             {74, -42},
             {120, -40},
             {76, -74},
             {124, -48},
             13,
             finned,
             0.42});
        fin(p, tunny,
            {{{122, -42}, {128, -62}, {140, -84}, {146, -88}, {144, -66}, {148, -42}, {150, -34}},
             {126, -38},
             {148, -36},
             {143, -90},
             {149, -48},
             9,
             finned,
             0.48});
        fin(p, tunny,
            {{{126, 41}, {132, 60}, {143, 82}, {149, 86}, {147, 64}, {151, 42}, {152, 33}},
             {130, 38},
             {150, 35},
             {146, 88},
             {152, 48},
             9,
             finned,
             0.48});
        fin(p, tunny,
            {{{84, 42}, {92, 58}, {104, 64}, {106, 52}, {102, 40}},
             {86, 42},
             {100, 41},
             {102, 66},
             {108, 52},
             7,
             finned,
             0.4});
        for (int k = 0; k < 8; ++k) {
            const double x = 158 + k * 9.4;
            for (const double side : {-1.0, 1.0}) {
                const double y = side < 0 ? -tunny.backAt(x) : tunny.bellyAt(x);
                const double size = 9.5 - 0.6 * k;
                const Path finlet = tunny.path({{x - 2, y - side * 2},
                                                {x + 2, y + side * size * 0.9},
                                                {x + 9, y + side * size * 0.7 - side * 1.5},
                                                {x + 4, y - side * 2}});
                p.knockOut(finlet, {.halo = 0.2, .shade = 0.1});
                p.flat(finlet, palettes::yellow, 0.4);
                p.contour(finlet, 0.75);
            }
        }
        tunny.engrave(p, {.back = blue,
                          .flank = silver,
                          .belly = belly,
                          .backTo = 0.34,
                          .bellyFrom = 0.72,
                          .coverage = 0.46,
                          .hatchFrom = 0.34,
                          .highlight = 0.06});
        // Corselet and flank lines instead of scales.
        p.stroke(spline(tunny.path({{62, -30}, {92, -26}, {118, -12}, {96, 2}, {72, 8}})),
                 Pen{.width = 0.7, .swell = 0.3, .fade = 0.4});
        for (int k = 0; k < 5; ++k)
            p.stroke(
                spline(tunny.path(
                    {{84.0 + 5 * k, 16.0 + 4 * k}, {130, 18.0 + 3.6 * k}, {180.0 - 6 * k, 14.0 + 2.4 * k}})),
                Pen{.width = 0.5, .swell = 0.4, .fade = 0.5});
        tunny.gillCover(p, 56);
        tunny.lateralLine(p, 62, 0.44);
        fin(p, tunny,
            {{{60, 10}, {66, 5}, {96, 12}, {126, 24}, {94, 23}, {68, 17}},
             {61, 10},
             {64, 7},
             {118, 26},
             {122, 20},
             6,
             finned,
             0.46});
        p.stroke(tunny.path({{end - 26, -1}, {end - 14, -3.4}, {end, -1}}),
                 Pen{.width = 1.4, .swell = 0.4, .fade = 0.4});
        fishEye(p, tunny.at(25, -7), 4.8, Colour{0xD9D2B0});
        p.stroke(spline(tunny.path({{-1, 2}, {12, 5}, {23, 9.5}}), 6),
                 Pen{.width = 1.35, .swell = 0.1, .fade = 0.3});
        p.stroke(spline(tunny.path({{10, -5}, {11.5, -6.2}, {13, -5}}), 6), Pen{.width = 1.1});
    }};
