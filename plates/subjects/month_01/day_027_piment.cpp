// Pepper, Capsicum annuum: smooth ovate leaves, long pointed red fruits with a green cap, one still green;
// small white flowers.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Gourd.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_027_piment", [](Plate& p) {
        stem(p, {{198, 348}, {202, 290}, {196, 220}, {200, 160}}, {5, 4.2, 3.4});
        stem(p, {{199, 232}, {160, 190}, {132, 130}, {128, 96}}, {3, 2.4, 1.8});
        stem(p, {{199, 222}, {244, 184}, {272, 128}, {278, 96}}, {3, 2.4, 1.8});
        stem(p, {{200, 164}, {202, 120}, {206, 80}}, {3, 2});
        const LeafKind blade{.veins = 5, .petiole = 0.2};
        growLeaf(p, {201, 300}, -150, 82, 21, blade, -24);
        growLeaf(p, {202, 286}, -28, 84, 21, blade, 26);
        growLeaf(p, {128, 100}, -120, 74, 20, blade, -20);
        growLeaf(p, {130, 108}, -62, 62, 18, blade, 16);
        growLeaf(p, {278, 100}, -60, 74, 20, blade, 20);
        growLeaf(p, {276, 108}, -122, 62, 18, blade, -16);
        growLeaf(p, {206, 84}, -84, 60, 18, blade);
        growLeaf(p, {203, 108}, -20, 56, 16, blade, 20);
        growLeaf(p, {202, 116}, -160, 56, 16, blade, -20);
        growLeaf(p, {134, 134}, 170, 62, 17, blade, -30);
        growLeaf(p, {270, 134}, 10, 62, 17, blade, 30);
        const auto pepper = [&](Point hook, Point tip, double bow, const Palette& palette) {
            stem(p, {hook, hook + Point{bow * 0.4, -3}, hook + Point{bow, 12}}, {1.8, 2.4});
            const Point base = hook + Point{bow, 11};
            longFruit(p, {base, lerp(base, tip, 0.5) + Point{bow * 0.5, 0}, tip},
                      {.radius = {6, 11.5, 12, 10.5, 7.5, 3.6, 0.6}, .palette = palette});
            lathe(p, base + Point{0, -3}, 10, {3, 8.5, 10, 10.5},
                  {.direction = angleOf(tip - base),
                   .tilt = 0.2,
                   .palette = palettes::leaf,
                   .lines = Lines::along});
        };
        pepper({148, 166}, {140, 268}, -10, palettes::scarlet);
        pepper({254, 172}, {272, 272}, 10, palettes::scarlet);
        pepper({196, 176}, {176, 286}, -8, palettes::scarlet);
        pepper({203, 170}, {230, 262}, 16, palettes::leaf);
        pepper({118, 118}, {98, 212}, -12, palettes::scarlet);
        pepper({288, 124}, {312, 214}, 12, palettes::red);
        flower(p, {238, 150}, 70,
               {.petals = 6,
                .length = 13,
                .width = 6,
                .palette = palettes::whiteflower,
                .tilt = 50,
                .eye = 3,
                .washLift = 0});
    }};
