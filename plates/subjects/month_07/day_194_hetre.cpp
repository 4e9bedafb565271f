// Beech, Fagus sylvatica: wavy leaves with a fringe of hairs, a bristly husk open in four valves on three-
// edged nuts.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Pod.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_194_hetre", [](Plate& p) {
        const Path bough = twig(p, {{70, 84}, {150, 62}, {236, 74}, {330, 56}}, {5, 3.8, 2});
        const LeafKind wavyLeaf{
            .shape = shapes::ovate, .margin = wavy(7, 0.07), .veins = 8, .slant = 0.22, .petiole = 0.08};
        for (const BranchLeaf& l : {BranchLeaf{0.08, 106, 136, 37}, BranchLeaf{0.97, 70, 132, 37},
                                    BranchLeaf{0.32, -124, 72, 22}, BranchLeaf{0.68, -54, 78, 23}})
            growLeaf(p, along(bough, l.at), l.degrees, l.length, l.width, wavyLeaf, 5);
        bud(p, {328, 57}, -14, 26, palettes::brown);
        stem(p, {along(bough, 0.5), {200, 100}, {202, 136}}, {2.6, 3.4}, palettes::bark);
        husk(p, {202, 140}, 90,
             {.valves = 4,
              .length = 92,
              .width = 34,
              .openness = 74,
              .palette = palettes::burr,
              .inside = palettes::cream,
              .prickles = 34,
              .tilt = 24});
        const auto beechnut = [&](Point top, double degrees, double size) {
            const Point tip = polar(top, degrees, size), side = rightOf(direction(degrees)) * (size * 0.3);
            const Path outline =
                closedSpline({top, lerp(top, tip, 0.3) + side * 0.8, lerp(top, tip, 0.62) + side, tip,
                              lerp(top, tip, 0.62) - side, lerp(top, tip, 0.3) - side * 0.8},
                             8);
            p.knockOut(outline);
            p.flat(outline, palettes::chestnut, 0.42);
            const Path dark =
                band({top, lerp(top, tip, 0.5) + side * 0.1, tip}, {tip, lerp(top, tip, 0.6) - side, top});
            p.flat(dark, palettes::chestnut, 0.66);
            p.contour(outline, 0.9);
            p.stroke({top, lerp(top, tip, 0.5) + side * 0.1, tip}, {.width = 0.9});
        };
        beechnut({194, 150}, 106, 50);
        beechnut({212, 150}, 74, 50);
        ground(p, 160, 270, 312, 3);
        beechnut({188, 262}, 80, 50);
        beechnut({222, 300}, -20, 50);
    }};
