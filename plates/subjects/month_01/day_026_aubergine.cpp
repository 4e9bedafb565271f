// Aubergine, Solanum melongena: a pear-shaped, glossy dark violet fruit in a spiny green calyx; wavy leaves,
// a violet flower.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_026_aubergine", [](Plate& p) {
        stem(p, {{96, 60}, {150, 66}, {210, 60}, {300, 74}}, {4.2, 3.6, 2.8},
             mix(palettes::stem, palettes::purple, 0.4));
        const LeafForm blade{.width = 34, .margin = wavy(3, 0.2), .palette = palettes::greygreen, .veins = 6};
        LeafForm leafyBlade = blade;
        leafyBlade.palette = palettes::leaf;
        stem(p, {{120, 63}, {112, 78}, {104, 96}}, {2.2, 1.8});
        leaf(p, {{106, 92}, {84, 138}, {90, 206}}, leafyBlade);
        stem(p, {{250, 66}, {274, 84}, {284, 104}}, {2.2, 1.8});
        leaf(p, {{282, 100}, {308, 148}, {306, 214}}, leafyBlade);
        stem(p, {{292, 73}, {316, 60}, {326, 46}}, {1.8, 1.4});
        flower(p, {324, 50}, -60,
               {.length = 25,
                .width = 14,
                .baseAngle = 70,
                .tipAngle = 94,
                .shape = {0.6, 0.9, 1, 0.8, 0},
                .palette = palettes::violet,
                .cup = 2.6,
                .ruffle = 1.4,
                .tilt = 58,
                .eye = 6});
        stem(p, {{192, 62}, {196, 82}, {196, 104}}, {4.6, 5.4});
        lathe(p, {196, 104}, 176, {22, 29, 34, 41, 50, 55, 51, 34, 4},
              {.direction = 90,
               .tilt = 0.1,
               .palette = mix(palettes::plum, palettes::purple, 0.3),
               .lines = Lines::along,
               .spacing = 2.2,
               .coverage = 0.42,
               .tone = 0.12,
               .highlight = 0.2});
        for (const double a : {168.0, 138.0, 112.0, 90.0, 68.0, 42.0, 12.0}) {
            const double reach = 30 + 22 * dot(direction(a), direction(90));
            leaflet(p, Point{196, 98} + Point{dot(direction(a), direction(0)) * 14, 0},
                    Point{196, 104} + Point{dot(direction(a), direction(0)) * 33, reach},
                    {.width = 9, .shape = shapes::ovate});
        }
        ball(p, {196, 102}, 12, {.palette = palettes::leaf, .squash = 0.7});
        for (const Point at :
             {Point{182, 112}, Point{196, 116}, Point{210, 112}, Point{188, 128}, Point{204, 128}})
            p.stroke({at, at + Point{-4, -6}}, {.width = 1.0, .swell = 0});
    }};
