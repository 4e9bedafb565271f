#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"

using namespace tambrelle::engraver;

// Honey: a piece of comb, its six-sided cells open and running over, behind a glazed pot of honey with the
// ladle that drips.
static const Subject subject{
    "day_068_miel", [](Plate& p) {
        constexpr Palette honey{0xFFE9A0, 0xEDB23C, 0x9A5A14}, wax{0xFBE7B0, 0xE2B65E, 0x9A6C26},
            glaze{0xE8C49C, 0xB87844, 0x6A3A1C};
        // The comb, leaning behind the pot.
        const Path slab = closedSpline({{52, 196},
                                        {40, 150},
                                        {46, 96},
                                        {74, 60},
                                        {124, 46},
                                        {168, 58},
                                        {186, 92},
                                        {190, 150},
                                        {182, 204},
                                        {120, 214}},
                                       8);
        ReliefForm form;
        form.palette = wax;
        form.bevel = 8;
        form.hatchFrom = 0.34;
        relief(p, slab, form);
        {
            const Plate::Clip clip(p, slab);
            constexpr double r = 9.2;
            for (int row = 0; row < 13; ++row)
                for (int k = 0; k < 12; ++k) {
                    const Point c{34 + (k + (row % 2) * 0.5) * r * 1.78 + p.random.around(0.4),
                                  44 + row * r * 1.54 + p.random.around(0.4)};
                    const bool inside = contains(slab, c + Point{-r, 0}) && contains(slab, c + Point{r, 0}) &&
                                        contains(slab, c + Point{0, -r}) && contains(slab, c + Point{0, r});
                    if (!inside)
                        continue;
                    Path cell, hole;
                    for (int j = 0; j < 6; ++j) {
                        cell.push_back(polar(c, 60.0 * j - 30, r * 0.93));
                        hole.push_back(polar(c + Point{0.7, 0.9}, 60.0 * j - 30, r * 0.70));
                    }
                    const bool sealed = row < 3 || (row < 5 && k > 5);
                    p.flat(cell, wax, sealed ? 0.28 : 0.36);
                    p.contour(cell, {.width = 0.85, .lit = 0.8});
                    if (sealed) {
                        p.stroke(arc(c + Point{0.6, 0.8}, r * 0.5, r * 0.5, 0, 110, 10),
                                 Pen{.width = 0.6, .swell = 0.3, .fade = 0.4});
                        continue;
                    }
                    p.flat(hole, honey, 0.72);
                    p.flat(moved(hole, {1.6, 2.0}), honey, 0.42);
                    p.contour(hole, {.width = 0.7, .lit = 0.9});
                    for (int j = 0; j < 4; ++j)
                        p.stroke({hole[4] + (hole[5] - hole[4]) * (0.25 * j),
                                  hole[4] + (hole[5] - hole[4]) * (0.25 * j) + Point{-1.5 + j * 0.4, 5.0}},
                                 Pen{.width = 0.6, .swell = 0, .fade = 0.7});
                    p.highlight(ellipse(c + Point{-1.6, 3.0}, 1.1, 0.8, 10));
                }
        }
        p.contour(slab, 1.0);
        // Honey running down the slab.
        ReliefForm drop;
        drop.palette = honey;
        drop.bevel = 6;
        drop.hatchFrom = 0.5;
        relief(p,
               closedSpline({{70, 178},
                             {84, 174},
                             {92, 186},
                             {90, 206},
                             {94, 226},
                             {88, 234},
                             {81, 226},
                             {82, 208},
                             {74, 198},
                             {68, 206},
                             {63, 200},
                             {64, 186}},
                            8),
               drop);
        relief(
            p,
            closedSpline({{44, 222}, {70, 218}, {112, 220}, {146, 226}, {140, 238}, {96, 243}, {52, 238}}, 8),
            drop);
        // The pot.
        LatheForm pot;
        pot.palette = glaze;
        pot.tilt = 0.24;
        pot.spacing = 2.0;
        const LatheSurface jar = lathe(p, {214, 234}, 98, {36, 50, 58, 60, 58, 52, 44, 42, 46, 47}, pot);
        const Point lip = jar.base + Point{0, -98 * 0.971};
        const Path mouth = ellipse(lip, 47, 11.5), inner = ellipse(lip + Point{0, 0.5}, 42, 9.4);
        p.knockOut(mouth, {.halo = 0, .shade = 0});
        p.flat(mouth, glaze, 0.2);
        p.contour(mouth, 0.9);
        p.knockOut(inner, {.halo = 0, .shade = 0});
        p.flat(inner, honey, 0.5);
        {
            const Plate::Clip clip(p, inner);
            p.flat(moved(inner, {5, 4.5}), honey, 0.3);
            for (int k = 0; k < 26; ++k)
                p.stroke({{172.0 + 3.3 * k, lip.y - 11}, {172.6 + 3.3 * k, lip.y - 5.5 + 0.05 * k}},
                         Pen{.width = 0.8, .swell = 0, .fade = 0.7});
        }
        p.contour(inner, 0.7);
        // A run of honey over the rim.
        relief(p,
               closedSpline({{188, 144},
                             {204, 147.5},
                             {206, 158},
                             {204, 172},
                             {206, 186},
                             {200, 194},
                             {194, 186},
                             {196, 170},
                             {190, 160},
                             {184, 168},
                             {179, 162},
                             {180, 148},
                             {183, 143}},
                            8),
               drop);
        p.highlight(ellipse({199, 180}, 1.3, 3, 12));
        p.highlight(ellipse({184, 153}, 1.2, 2.4, 12));
        // The ladle above, its drop drawn out to the honey.
        drop.shade = 0.1;
        relief(p,
               closedSpline({{228, 92},
                             {240, 92},
                             {238, 104},
                             {235, 118},
                             {235.6, 138},
                             {232.4, 138},
                             {232.6, 118},
                             {230, 104}},
                            6),
               drop);
        tube(p, {{304, 30}, {274, 54}, {248, 76}}, {3.4, 3.4, 3.8},
             {.palette = palettes::wood, .lines = Lines::along, .spacing = 1.6, .contour = 0.9});
        LatheForm dipper;
        dipper.palette = palettes::wood;
        dipper.direction = 143;
        dipper.tilt = 0.1;
        dipper.spacing = 1.8;
        lathe(p, {254, 72}, 30, {4, 9, 6.5, 12, 8, 13, 8.4, 13, 8, 11.5, 7, 8, 1}, dipper);
        relief(p, closedSpline({{226, 84}, {236, 92}, {242, 97}, {238, 102}, {230, 99}, {224, 92}}, 6), drop);
        ground(p, 36, 288, 238);
    }};
