// Elm, Ulmus: doubly toothed leaves with an uneven base, round papery samaras in bunches on the twig.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_162_orme", [](Plate& p) {
        const Path curve = twig(p, {{64, 92}, {150, 66}, {240, 78}, {338, 56}}, {5.4, 4, 2.2});
        const auto blade = [&](double q, double degrees, double size, const Palette& palette) {
            const Point at = along(curve, q), from = polar(at, degrees, 9);
            stem(p, {at, from}, {2, 1.8});
            leaf(p, {from, polar(from, degrees, size * 0.5), polar(from, degrees + 8, size)},
                 {.width = size * 0.31,
                  .shape = {0.5, 0.85, 1, 0.98, 0.8, 0.45, 0},
                  .margin = serrate(15, 0.16),
                  .palette = palette,
                  .veins = 11,
                  .slant = 0.2,
                  .right = 1,
                  .left = 0.76});
        };
        blade(0.1, 108, 136, palettes::leaf);
        blade(0.9, 72, 138, palettes::leaf);
        blade(0.28, -128, 74, palettes::leafy);
        blade(0.62, -56, 74, palettes::leafy);
        blade(1, -6, 66, palettes::leaf);
        const auto key = [&](Point from, Point at, double r) {
            stem(p, {from, at}, {1.1, 1});
            const Path wing = ellipse(at, r * 0.86, r);
            relief(p, wing, {.palette = palettes::oldleaf, .bevel = 3, .heightScale = 0.5});
            for (int k = 0; k < 16; ++k)
                p.stroke({polar(at, k * 22.5, r * 0.42), polar(at, k * 22.5, r * 0.82)}, {.width = 0.5});
            ball(p, at, r * 0.36, {.palette = palettes::brown, .direction = 90, .squash = 1.3});
        };
        for (const double q : {0.4, 0.62}) {
            const Point knot = along(curve, q);
            for (const Point way :
                 {Point{-34, 38}, Point{34, 38}, Point{0, 54}, Point{-22, 80}, Point{24, 82}, Point{2, 108}})
                key(knot, knot + way + Point{q < 0.5 ? -4.0 : 6.0, 0}, 20);
        }
    }};
