// Cyclamen: a flat round tuber, marbled heart leaves, nodding flowers whose petals are swept straight up.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_147_cyclamen", [](Plate& p) {
        rootlets(p, {200, 344}, 18, 90, 150, 20);
        lathe(p, {200, 344}, 34, {20, 40, 46, 40, 16}, {.palette = palettes::brown});
        const auto heart = [&](const Path& stalk, double degrees, double size) {
            stem(p, stalk, {2.4, 2}, palettes::redstem);
            const Point at = stalk.back();
            const Path spine{at, polar(at, degrees, size * 0.5), polar(at, degrees, size)};
            leaf(p, spine,
                 {.width = size * 0.48,
                  .shape = shapes::cordate,
                  .margin = crenate(9, 0.05),
                  .palette = palettes::darkleaf,
                  .veins = 5});
            for (const double s : {-1.0, 1.0})
                for (int k = 0; k < 5; ++k) {
                    const Point c = polar(polar(at, degrees, size * (0.16 + 0.15 * k)), degrees + 90 * s,
                                          size * (0.25 + 0.04 * k - 0.022 * k * k));
                    const Path mark = turned(ellipse(c, size * 0.055, size * 0.032), degrees + 24 * s, c);
                    p.flat(mark, palettes::silver, 0.3);
                }
        };
        heart({{194, 314}, {160, 290}, {130, 262}}, 168, 88);
        heart({{206, 314}, {244, 290}, {272, 264}}, 12, 88);
        heart({{190, 316}, {152, 306}, {124, 304}}, 150, 66);
        heart({{210, 316}, {246, 308}, {276, 304}}, 30, 66);
        const auto swept = [&](const Path& stalk, double size, double lean) {
            stem(p, stalk, {2.8, 2.2, 2}, palettes::redstem);
            Sheets sheets;
            const Frame frame(stalk.back(), -10, 90 + lean, 20);
            for (int k = 0; k < 5; ++k)
                sheets.petal(frame, k * 72,
                             {.length = size,
                              .width = size * 0.25,
                              .baseAngle = 128,
                              .tipAngle = 176,
                              .shape = {0.45, 0.75, 1, 1, 0.8, 0.1},
                              .cup = 1.6,
                              .radius = 5,
                              .offset = 7,
                              .bending = 0.4},
                             p.random);
            sheets.cup(frame, {.length = 13, .radius = 10, .shape = {0.5, 0.9, 1, 0.9}, .palette = 1});
            sheets.engrave(p,
                           {.palettes = {Sheets::Style::Tint{mix(palettes::magenta, palettes::crimson, 0.2),
                                                             mix(palettes::rose, palettes::magenta, 0.3)},
                                         mix(palettes::magenta, palettes::crimson, 0.5)},
                            .washLift = 0.06});
        };
        swept({{198, 316}, {180, 250}, {150, 170}, {138, 132}, {126, 128}, {120, 140}}, 66, 8);
        swept({{204, 316}, {226, 250}, {254, 180}, {268, 144}, {280, 140}, {286, 152}}, 62, -8);
        swept({{200, 316}, {204, 220}, {198, 120}, {204, 96}, {214, 96}, {218, 110}}, 74, 4);
    }};
