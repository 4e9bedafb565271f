// Yew, Taxus baccata: flat dark needles combed to two sides, red fleshy cups open upon a dark seed.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Conifer.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_138_if", [](Plate& p) {
        const auto spray = [&](const Path& spine, int count, double length) {
            needleTwig(p, spine,
                       {.length = length,
                        .width = 2.1,
                        .count = count,
                        .angle = 62,
                        .palette = palettes::darkleaf,
                        .twig = 2.6});
        };
        spray({{150, 116}, {128, 190}, {92, 250}}, 20, 26);
        spray({{232, 130}, {264, 196}, {306, 244}}, 20, 26);
        spray({{190, 122}, {192, 220}, {206, 314}}, 24, 28);
        spray({{58, 104}, {150, 112}, {250, 136}, {340, 118}}, 36, 30);
        const auto aril = [&](Point at, double size) {
            const Path cup =
                ball(p, at, size, {.palette = palettes::scarlet, .direction = -90, .squash = 1.08});
            const Path mouth = ellipse(at + Point{0, size * 0.52}, size * 0.55, size * 0.36);
            p.flat(mouth, palettes::crimson, 0.95);
            p.contour(mouth, 0.7);
            ball(p, at + Point{0, size * 0.56}, size * 0.36, {.palette = palettes::berry, .direction = 90});
        };
        for (const Point at : {Point{122, 114}, Point{186, 146}, Point{112, 220}, Point{184, 212},
                               Point{206, 264}, Point{252, 148}, Point{282, 216}, Point{304, 134}})
            aril(at + Point{0, 6}, 14);
    }};
