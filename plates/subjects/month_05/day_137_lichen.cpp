// Lichen: leafy crusts in curled rosettes and a grey shrubby tuft upon a dead branch.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Cryptogam.h"

#include <functional>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_137_lichen", [](Plate& p) {
        twig(p, {{196, 240}, {230, 180}, {292, 120}, {318, 78}}, {15, 11, 6});
        twig(p, {{60, 262}, {140, 238}, {230, 244}, {342, 214}}, {25, 22, 19});
        const std::function<void(Point, double, double, double)> bush = [&](Point from, double degrees,
                                                                            double size, double radius) {
            const Point tip = polar(from, degrees, size);
            const Palette grey = mix(palettes::greygreen, palettes::whiteflower, 0.25);
            if (size > 9) {
                bush(tip, degrees - 26 + p.random.around(10), size * 0.72, radius * 0.72);
                bush(tip, degrees + 26 + p.random.around(10), size * 0.72, radius * 0.72);
            }
            tube(p, {from, lerp(from, tip, 0.5) + Point{p.random.around(2), 0}, polar(tip, degrees, 2)},
                 {radius, radius * 0.75}, {.palette = grey, .lines = Lines::along, .contour = 0.7});
        };
        for (const double a : {-128.0, -96.0, -62.0})
            bush({146, 226}, a, 36, 4.4);
        for (const double a : {-120.0, -80.0})
            bush({288, 120}, a, 24, 3.2);
        lichenRosette(p, {220, 238}, 44, palettes::greygreen);
        lichenRosette(p, {296, 226}, 32, mix(palettes::sulphur, palettes::greygreen, 0.35));
        lichenRosette(p, {100, 258}, 26, mix(palettes::orange, palettes::yellow, 0.5));
    }};
