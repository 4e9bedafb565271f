// Opium poppy, Papaver somniferum: four huge crumpled petals with a dark base, glaucous clasping leaves, an
// urn capsule with a rayed lid.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Pod.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_258_pavot", [](Plate& p) {
        const Path main{{200, 346}, {202, 240}, {198, 150}}, side{{204, 300}, {250, 220}, {282, 132}},
            bent{{198, 296}, {150, 220}, {120, 150}, {100, 146}, {98, 172}};
        stem(p, side, {3, 2.6}, palettes::bluegreen);
        stem(p, bent, {2.8, 2.2}, palettes::bluegreen);
        stem(p, main, {4.4, 3.2}, palettes::bluegreen);
        LeafForm blade{.width = 25, .margin = dentate(6, 0.26), .palette = palettes::bluegreen, .veins = 6};
        leaf(p, {{200, 318}, {150, 304}, {92, 326}}, blade);
        leaf(p, {{201, 306}, {252, 296}, {308, 318}}, blade);
        blade.width = 18;
        leaf(p, {{201, 252}, {164, 236}, {126, 252}}, blade);
        leaf(p, {{202, 240}, {238, 232}, {274, 250}}, blade);
        capsule(p, {282, 136}, -82,
                {.radius = 23,
                 .length = 44,
                 .shape = {0.3, 0.75, 1, 1, 0.9, 0.62},
                 .palette = palettes::bluegreen,
                 .ribs = 10,
                 .lid = true});
        lathe(p, {98, 168}, 40, {4, 12, 15, 14, 9, 1},
              {.direction = 92, .palette = palettes::bluegreen, .lines = Lines::along});
        Sheets bloom;
        const Frame frame({198, 148}, 34, -90, 14);
        for (const double a : {0.0, 180.0, 90.0, 270.0})
            bloom.petal(frame, a,
                        {.length = a == 0 || a == 180 ? 92.0 : 84.0,
                         .width = 56,
                         .baseAngle = 62,
                         .tipAngle = 44,
                         .shape = {0.25, 0.65, 0.95, 1.02, 0.85, 0.1},
                         .cup = 1.5,
                         .curl = 12,
                         .ruffle = 4.5,
                         .ruffleTurns = 9,
                         .radius = 3,
                         .tone =
                             [](double u, double v) {
                                 return 0.75 * (1 - maths::smooth(0.14, 0.34, u)) +
                                        0.06 * maths::cos(v * 40) * u;
                             },
                         .rows = 40,
                         .columns = 41},
                        p.random);
        bloom.cup(frame, {.length = 26, .radius = 12, .shape = {0.4, 0.9, 1, 0.9, 1.1}, .palette = 1});
        for (int k = 0; k < 26; ++k)
            bloom.rod(frame, {.azimuth = k * 137.5,
                              .lean = 40 + 16.0 * (k % 3),
                              .length = 30,
                              .radius = 0.5,
                              .tipRadius = 1.8,
                              .palette = 2});
        bloom.engrave(
            p, {.palettes = {mix(palettes::lilac, palettes::rose, 0.5), palettes::leafy, palettes::yellow},
                .washLift = 0.08,
                .occlusion = 0.7});
    }};
