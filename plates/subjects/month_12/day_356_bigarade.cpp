// Bitter orange, Citrus aurantium: rough deep-orange globes, leaves on broadly winged stalks, long slender
// thorns in their axils, white five-petalled flowers.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_356_bigarade", [](Plate& p) {
        const auto winged = [&](Point at, double degrees, double size) {
            const Point joint = polar(at, degrees, size * 0.38);
            leaf(p, {joint, polar(joint, degrees + 4, size * 0.4), polar(joint, degrees + 8, size * 0.8)},
                 {.width = size * 0.22, .shape = shapes::ovate, .margin = crenate(12, 0.04), .veins = 6});
            leaf(p, {at, lerp(at, joint, 0.5), joint},
                 {.width = size * 0.17, .shape = {0.08, 0.3, 0.66, 0.94, 1, 0.55}, .veins = 3});
        };
        const Path cane = spline({{76, 84}, {150, 66}, {236, 72}, {328, 58}});
        winged({92, 80}, 112, 122);
        winged({140, 68}, -150, 70);
        winged({232, 72}, -42, 66);
        winged({292, 66}, 66, 128);
        winged({322, 60}, 8, 56);
        struct Thorn {
            Point at;
            double degrees;
        };
        for (const Thorn& t :
             {Thorn{{84, 82}, -98}, {{150, 66}, -78}, {{234, 71}, -98}, {{272, 68}, 104}, {{306, 62}, -96}})
            thorn(p, t.at, t.degrees, 34, palettes::oldleaf);
        twig(p, {{76, 84}, {150, 66}, {236, 72}, {328, 58}}, {4.4, 3.6, 2.2}, palettes::stem);
        hangingPome({.length = 100,
                     .shape = {8, 31, 42, 48, 51, 52, 51, 48, 42, 31, 6},
                     .palette = palettes::orange,
                     .stalk = 12,
                     .direction = 96,
                     .calyx = 0,
                     .dots = 320})(p, {172, 66}, 90);
        hangingPome({.length = 94,
                     .shape = {8, 29, 39, 45, 48, 49, 48, 45, 39, 29, 6},
                     .palette = mix(palettes::orange, palettes::scarlet, 0.2),
                     .stalk = 66,
                     .direction = 88,
                     .calyx = 0,
                     .dots = 320})(p, {246, 70}, 90);
        const FlowerForm blossom{.length = 32,
                                 .width = 10,
                                 .baseAngle = 72,
                                 .tipAngle = 98,
                                 .shape = shapes::elliptic,
                                 .palette = palettes::whiteflower,
                                 .tilt = 62,
                                 .eye = 3,
                                 .stamens = 14,
                                 .stamenLength = 0.45,
                                 .washLift = 0};
        flower(p, {196, 60}, -96, blossom);
        flower(p, {282, 60}, -70, blossom, 0.85);
        // A bud in its green cup, on its stalk.
        stem(p, {{220, 71}, {226, 82}, {226, 94}}, 1.5);
        ball(p, {226, 107}, 7.5, {.palette = palettes::whiteflower, .direction = 90, .squash = 1.6});
        leaf(p, {{226, 90}, {226, 94}, {226, 99}},
             {.width = 5.5, .shape = {0.4, 0.8, 1, 0.95}, .veins = 0, .contour = 0.7, .midrib = 0});
    }};
