// Beech, Fagus sylvatica: wavy leaves with a fringe of hairs, a bristly husk open in four valves on two
// three- edged nuts.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_194_hetre", [](Plate& p) {
        const Path bough = twig(p, {{60, 96}, {140, 70}, {230, 78}, {340, 56}}, {5.4, 4, 2});
        const LeafKind wavyLeaf{
            .shape = shapes::ovate, .margin = wavy(7, 0.08), .veins = 8, .slant = 0.22, .petiole = 0.08};
        for (const BranchLeaf& l : {BranchLeaf{0.06, 112, 142, 42}, BranchLeaf{0.98, 70, 142, 42},
                                    BranchLeaf{0.34, -128, 74, 24}, BranchLeaf{0.68, -56, 78, 25}})
            growLeaf(p, along(bough, l.at), l.degrees, l.length, l.width, wavyLeaf, 5);
        bud(p, {338, 57}, -14, 30, palettes::brown);
        const Point heart{200, 206};
        const auto beechnut = [&](Point base, double degrees, double size) {
            const Point tip = polar(base, degrees, size), side = rightOf(direction(degrees)) * (size * 0.34);
            const Path outline =
                closedSpline({base, lerp(base, tip, 0.2) + side * 0.8, lerp(base, tip, 0.46) + side, tip,
                              lerp(base, tip, 0.46) - side, lerp(base, tip, 0.2) - side * 0.8},
                             8);
            p.knockOut(outline);
            p.flat(outline, palettes::chestnut, 0.36);
            const Point ridge = lerp(base, tip, 0.5) + side * 0.12;
            p.flat(band({base, ridge, tip}, {tip, lerp(base, tip, 0.46) - side, base}), palettes::chestnut,
                   0.66);
            p.contour(outline, 1);
            p.stroke({base, ridge, tip}, {.width = 1});
        };
        // The husk looks at us: four woody valves, silky within, bristly without.
        const auto valve = [&](double degrees, double size, double width) {
            const Point tip = polar(heart, degrees, size);
            const Path spine{heart, lerp(heart, tip, 0.5), tip};
            for (int k = 0; k < 40; ++k) {
                const double t = 0.16 + 0.84 * (k / 2) / 19.0, side = k % 2 == 0 ? 1 : -1;
                const Point from =
                    lerp(heart, tip, t) +
                    rightOf(direction(degrees)) *
                        (side * width * 0.96 * maths::sin(maths::pi * std::min(0.25 + 0.72 * t, 1.0)));
                const double out = degrees + side * (76 - 50 * t);
                p.stroke(spline({from, polar(from, out, 6), polar(from, out - side * 26, 12)}),
                         {.width = 1.1, .swell = 0, .fade = 0.7});
            }
            leaf(p, spine,
                 {.width = width,
                  .shape = {0.7, 0.95, 1, 0.86, 0.5, 0},
                  .palette = palettes::brown,
                  .veins = 0,
                  .parallel = true});
            leaf(p, {heart, lerp(heart, tip, 0.48), lerp(heart, tip, 0.9)},
                 {.width = width * 0.78,
                  .shape = {0.7, 0.95, 1, 0.86, 0.5, 0},
                  .palette = palettes::cream,
                  .veins = 0,
                  .parallel = true,
                  .contour = 0.5});
        };
        stem(p, {along(bough, 0.5), {206, 110}, {202, 150}, {200, 196}}, {3.2, 4.4}, palettes::bark);
        valve(-58, 84, 27);
        valve(-122, 84, 27);
        valve(28, 92, 29);
        valve(152, 92, 29);
        beechnut(heart + Point{-10, 16}, -108, 64);
        beechnut(heart + Point{13, 18}, -72, 64);
        ground(p, 148, 260, 322, 3);
        beechnut({172, 318}, -74, 54);
        beechnut({208, 318}, -12, 50);
    }};
