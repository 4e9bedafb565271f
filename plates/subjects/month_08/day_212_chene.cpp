// Oak, Quercus robur: round-lobed leaves on short stalks, acorns on long ones.

#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Branch.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_212_chene", [](Plate& p) {
        twig(p, {{206, 46}, {196, 90}, {206, 140}, {196, 180}}, {5.5, 4, 2.8});
        twig(p, {{199, 110}, {166, 124}, {146, 132}}, {2.6, 1.8});
        twig(p, {{205, 130}, {238, 138}, {262, 140}}, {2.4, 1.6});
        LeafForm lobes{
            .width = 27, .shape = shapes::obovate, .margin = lobed(5.5), .veins = 5.5, .slant = 0.24};
        const auto blade = [&](const Path& spine, double width, const Palette& palette, double right,
                               double left) {
            lobes.width = width;
            lobes.palette = palette;
            lobes.right = right;
            lobes.left = left;
            leaf(p, spine, lobes);
        };
        blade({{202, 80}, {252, 74}, {306, 98}}, 27, palettes::leafy, 1, 0.8);
        blade({{198, 92}, {148, 70}, {88, 92}}, 28, palettes::leaf, 0.85, 1);
        blade({{148, 132}, {112, 160}, {80, 208}}, 26, palettes::leaf, 1, 0.75);
        blade({{260, 140}, {296, 162}, {318, 212}}, 26, palettes::leafy, 0.75, 1);
        blade({{196, 178}, {190, 220}, {206, 290}}, 30, palettes::leaf, 1, 1);
        stem(p, {{202, 152}, {220, 160}, {240, 182}}, {1.5, 2.2});
        acorn(p, {240, 182}, 72, 18);
        stem(p, {{199, 160}, {180, 166}, {160, 186}}, {1.5, 2.2});
        acorn(p, {160, 186}, 106, 18);
    }};
