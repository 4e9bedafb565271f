// Maize, Zea mays: an ear with rows of golden grains, its husk peeled back, silk at the tip; strap leaves and
// tassel behind.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Cereal.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_358_mais", [](Plate& p) {
        cereal(p, {.foot = {120, 346},
                   .height = 286,
                   .headLength = 70,
                   .stems = {-14},
                   .radius = 6,
                   .palette = palettes::leafy,
                   .leafPalette = palettes::leaf,
                   .leaves = 0,
                   .head = [](Plate& plate, const Path& spine) {
                       for (const double a : {-132.0, -48.0, -116.0, -64.0, -90.0})
                           ear(plate,
                               {spine.front(), polar(spine.front(), a, 34),
                                polar(spine.front(), a * 0.96 - 3, 68)},
                               {.spikelets = 9,
                                .length = 9,
                                .width = 2.4,
                                .angle = 24,
                                .palette = palettes::straw});
                   }});
        const LeafForm strap{.width = 13, .shape = {0.7, 1, 0.95, 0.7, 0.4, 0}, .veins = 0, .parallel = true};
        leaf(p, {{112, 190}, {84, 140}, {58, 150}, {44, 214}}, strap);
        leaf(p, {{114, 160}, {150, 100}, {196, 92}, {226, 120}}, strap);
        leaf(p, {{116, 290}, {84, 240}, {60, 250}, {44, 306}}, strap);
        const Point foot{214, 322};
        const double way = -66;
        stem(p, {{122, 334}, {168, 340}, foot}, {5, 6, 8}, palettes::leafy);
        const auto husk1 = [&](double a, double reach, double bend, double width) {
            leaf(p,
                 {foot, polar(foot, way + a * 0.5, reach * 0.5),
                  polar(polar(foot, way + a * 0.5, reach * 0.5), way + a + bend, reach * 0.55)},
                 {.width = width,
                  .shape = {0.6, 0.95, 1, 0.85, 0.5, 0},
                  .palette = palettes::leafy,
                  .veins = 0,
                  .parallel = true});
        };
        husk1(-70, 150, -20, 22);
        husk1(76, 150, 24, 22);
        for (int k = 0; k < 26; ++k) {
            const Point tip = polar(foot, way, 226);
            const double a = way + (k - 12.5) * 5;
            p.stroke(spline({polar(foot, way, 206), polar(tip, a, 16),
                             polar(polar(tip, a, 22), a + 30, 18 + p.random.around(6))}),
                     {.width = 0.8, .colour = Colour(0x9A5A2A)});
        }
        const LatheSurface cob =
            lathe(p, foot, 220, {22, 33, 37, 37, 35, 30, 22, 9},
                  {.direction = way, .tilt = 0.12, .palette = palettes::gold, .coverage = 0.2});
        for (int row = 0; row < 24; ++row)
            for (int k = 0; k < 14; ++k) {
                const double u = 0.06 + row * 0.0385, angle = k * 360.0 / 14 + 6;
                if (cob.facing(u, angle) < 0.08)
                    continue;
                const double small = (row > 19 ? 0.72 : 1) * (0.55 + 0.45 * cob.facing(u, angle));
                ball(p, cob.at(u, angle), 7.4 * small,
                     {.palette = (row * 5 + k * 3) % 7 == 0 ? palettes::orange : palettes::yellow,
                      .direction = way,
                      .squash = 0.72,
                      .contour = 0.6,
                      .shade = 0.2,
                      .highlight = 0.2});
            }
        husk1(-44, 128, -30, 20);
        husk1(46, 122, 34, 20);
        husk1(6, 70, 40, 22);
    }};
