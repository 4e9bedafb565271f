// Laurustinus, Viburnum tinus: opposite ovate leaves, a domed cluster of small white flowers with pink buds,
// metallic blue berries.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_126_laurier-thym", [](Plate& p) {
        const Path spine = twig(p, {{196, 344}, {206, 280}, {196, 210}, {202, 140}}, {5, 4, 2.6});
        twig(p, {{202, 272}, {240, 240}, {264, 200}}, {3, 2.4});
        const LeafKind oval{.shape = shapes::elliptic,
                            .veins = 6,
                            .petiole = 0.12,
                            .palette = palettes::darkleaf,
                            .stalk = palettes::redstem};
        growLeaf(p, {202, 290}, -166, 98, 26, oval, -14);
        growLeaf(p, {204, 284}, -4, 100, 26, oval, 16);
        growLeaf(p, {198, 226}, -154, 98, 25, oval, -20);
        growLeaf(p, {262, 204}, -14, 78, 22, oval, 20);
        growLeaf(p, {256, 214}, 46, 74, 21, oval, 20);
        growLeaf(p, {200, 162}, -160, 88, 22, oval, -16);
        growLeaf(p, {202, 160}, -22, 86, 22, oval, 14);
        stem(p, {{262, 204}, {272, 188}, {278, 172}}, {1.8, 1.5}, palettes::redstem);
        corymb({.flower = berries(7.4, mix(palettes::blue, palettes::berry, 0.55), 1.25),
                .count = 11,
                .spread = 190,
                .length = 30,
                .stalk = palettes::redstem})(p, spline({{262, 204}, {272, 188}, {278, 172}}));
        const Path top{{202, 150}, {198, 130}, {194, 112}};
        stem(p, top, {2.4, 2});
        for (const double a : {-158.0, -22.0, -130.0, -50.0, -90.0}) {
            const Path arm{{194, 112}, polar({194, 112}, a, 22), polar({194, 112}, a, 42)};
            stem(p, arm, {1.5, 1.2}, palettes::redstem);
            corymb({.flower = flowers({.length = 9,
                                       .width = 6,
                                       .baseAngle = 70,
                                       .tipAngle = 88,
                                       .shape = shapes::orbicular,
                                       .palette = palettes::whiteflower,
                                       .tilt = 64,
                                       .eye = 1.8,
                                       .eyePalette = palettes::yellow,
                                       .washLift = 0}),
                    .count = 9,
                    .spread = 200,
                    .length = 21})(p, spline(arm));
        }
    }};
