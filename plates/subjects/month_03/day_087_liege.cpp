// Cork oak, Quercus suber: a trunk stripped to its red wood below the thick furrowed bark; a toothed grey
// leaf with an acorn, and corks.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Maths.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/Habit.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_087_liege", [](Plate& p) {
        ground(p, 60, 340, 320, 5);
        trunk(p, {148, 320}, {140, 40}, 58, {.bark = TrunkForm::Bark::cork, .palette = palettes::dun});
        tube(p, {{148, 318}, {144, 250}, {142, 172}}, {54, 50, 49},
             {.palette = mix(palettes::brick, palettes::orange, 0.25),
              .lines = Lines::across,
              .spacing = 2.6,
              .rough = 0.02});
        for (int k = 0; k < 40; ++k) {
            const double x = 144 + p.random.around(42), y = p.random.uniform(184, 296);
            p.stroke({{x, y}, {x + p.random.around(1.5), y + 12}}, {.width = 0.5, .alpha = 0.7});
        }
        Path rim{{86, 172}};
        for (int k = 1; k < 12; ++k)
            rim.push_back({86 + k * 9.6, 172 + 9 * maths::sin(maths::pi * k / 12.0) + p.random.around(2.4)});
        rim.push_back({200, 172});
        p.stroke(rim, {.width = 3.2, .swell = 0.05, .fade = 0.05});
        const LeafForm blade{.width = 17,
                             .shape = shapes::ovate,
                             .margin = dentate(6, 0.2),
                             .palette = palettes::greygreen,
                             .veins = 7};
        twig(p, {{222, 62}, {270, 84}, {316, 80}}, {4, 3.2, 2});
        leaf(p, {{236, 68}, {264, 44}, {300, 30}}, blade);
        leaf(p, {{312, 80}, {336, 90}, {356, 120}}, blade);
        leaf(p, {{250, 78}, {240, 104}, {244, 146}}, blade);
        stem(p, {{280, 84}, {286, 96}, {288, 106}}, {2, 2.2});
        acorn(p, {288, 106}, 84, 17);
        const auto stopper = [&](Point foot, double degrees, double size) {
            lathe(p, foot, 50 * size, {15 * size, 16 * size, 17.6 * size, 18.4 * size},
                  {.direction = degrees, .tilt = 0.3, .palette = palettes::tan, .lines = Lines::across});
            for (int k = 0; k < 16; ++k) {
                const Point at = polar(polar(foot, degrees, p.random.uniform(6, 42) * size), degrees + 90,
                                       p.random.around(11) * size);
                p.stroke({at, at + Point{p.random.around(3), 1.4}}, {.width = 1.3});
            }
        };
        stopper({262, 318}, -90, 1.15);
        stopper({346, 306}, 188, 1.0);
    }};
