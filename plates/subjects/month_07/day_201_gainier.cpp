// Judas tree, Cercis siliquastrum: pink pea flowers straight from bare bark, round heart-shaped leaves,
// flat pods.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Pod.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_201_gainier", [](Plate& p) {
        const LeafKind heart{
            .shape = shapes::cordate, .veins = 5, .petiole = 0.28, .palette = palettes::bluegreen};
        const Path bough = twig(p, {{62, 240}, {140, 200}, {230, 170}, {338, 92}}, {9, 7, 3});
        growLeaf(p, along(bough, 0.97), 66, 88, 36, heart, 0);
        growLeaf(p, along(bough, 0.8), 96, 112, 44, heart, 4);
        growLeaf(p, along(bough, 0.9), -124, 78, 30, heart, -6);
        for (const double x : {0.28, 0.36, 0.44}) {
            const Point from = along(bough, x);
            stem(p, {from, from + Point{2, 10}, from + Point{4, 20}}, {1.5, 1.3});
            pod(p, {from + Point{4, 18}, from + Point{2, 60}, from + Point{10, 108}},
                {.width = 11,
                 .seeds = 7,
                 .open = false,
                 .palette = mix(palettes::redstem, palettes::leaf, 0.4)});
        }
        for (const double q : {0.1, 0.3, 0.5, 0.69}) {
            const Point from = along(bough, q) + Point{0, -4};
            for (const double a : {-150.0, -30.0, -125.0, -58.0, -92.0}) {
                const Point to = polar(from, a, 25);
                stem(p, {from, lerp(from, to, 0.5) + Point{2, 0}, to}, {1.4, 1.2}, palettes::magenta);
                peaFlower(p, to, a, 32, mix(palettes::magenta, palettes::pink, 0.3), a < -90 ? -1 : 1);
            }
        }
    }};
