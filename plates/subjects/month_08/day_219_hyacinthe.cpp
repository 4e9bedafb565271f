// Hyacinth, Hyacinthus orientalis: a dense column of waxy blue six-lobed bells on a thick stalk, channelled
// leaves, a purple bulb.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_219_hyacinthe", [](Plate& p) {
        bulb(p, {200, 286}, 32, 46, mix(palettes::plum, palettes::root, 0.3));
        const LeafForm strap{.width = 10, .shape = shapes::linear, .veins = 0, .parallel = true};
        leaf(p, {{194, 290}, {158, 220}, {120, 150}, {116, 116}}, strap);
        leaf(p, {{206, 290}, {242, 220}, {282, 150}, {286, 116}}, strap);
        stem(p, {{200, 292}, {201, 200}, {200, 60}}, {6, 5, 3});
        const Path curve = spline({{200, 292}, {201, 200}, {200, 60}});
        raceme({.flower = flowers({.petals = 6,
                                   .length = 25,
                                   .width = 7.6,
                                   .baseAngle = 28,
                                   .tipAngle = 118,
                                   .shape = {0.6, 0.85, 1, 0.9, 0.6, 0},
                                   .palette = mix(palettes::blue, palettes::violet, 0.4),
                                   .cup = 1.6,
                                   .tilt = 40,
                                   .marking =
                                       [](double u, double v) {
                                           return 0.2 * (1 - maths::smooth(0, 0.5, u)) +
                                                  0.16 * maths::exp(-v * v * 60);
                                       },
                                   .tube = 11,
                                   .tubeRadius = 5.5}),
                .nodes = 6,
                .from = 0.36,
                .to = 1,
                .perNode = 4,
                .angle = 84,
                .pedicel = 16,
                .smallest = 0.72})(p, curve);
        leaf(p, {{197, 292}, {178, 232}, {156, 190}, {140, 174}}, strap);
        leaf(p, {{203, 292}, {224, 236}, {250, 196}, {266, 180}}, strap);
    }};
