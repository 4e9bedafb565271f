// Robinia, Robinia pseudoacacia: pinnate leaves of oval leaflets, paired thorns, hanging white clusters of
// pea flowers, a flat brown pod.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Pod.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_254_acacia", [](Plate& p) {
        const Path spine = twig(p, {{68, 84}, {150, 66}, {240, 76}, {332, 56}}, {5.4, 4.2, 2.6});
        for (const double q : {0.2, 0.5, 0.78})
            for (const double turn : {-50.0, -118.0})
                thorn(p, along(spine, q), turn, 13, palettes::darkwood);
        const LeafKind feather{.build = LeafKind::Build::pinnate,
                               .shape = shapes::elliptic,
                               .veins = 3,
                               .petiole = 0.1,
                               .leaflets = 6,
                               .leafletWidth = 0.24};
        growLeaf(p, along(spine, 0.08), 104, 130, 15, feather, 10);
        growLeaf(p, along(spine, 0.5), 92, 120, 14, feather, -8);
        growLeaf(p, along(spine, 0.94), 66, 128, 15, feather, 12);
        growLeaf(p, along(spine, 0.3), -150, 88, 11, feather, 14);
        growLeaf(p, along(spine, 0.84), -38, 82, 11, feather, -10);
        const auto cluster = [&](double q, Point tip) {
            const Point at = along(spine, q);
            const Path way{at, at + Point{(tip.x - at.x) * 0.7, 30}, tip};
            stem(p, way, {1.6, 1});
            raceme({.flower = peas(27, palettes::whiteflower),
                    .nodes = 7,
                    .from = 0.2,
                    .perNode = 2,
                    .angle = 74,
                    .pedicel = 7,
                    .smallest = 0.55})(p, spline(way));
        };
        cluster(0.28, {150, 238});
        cluster(0.72, {252, 246});
        pod(p, {along(spine, 0.4) + Point{2, 2}, {206, 150}, {200, 224}},
            {.width = 6, .seeds = 6, .open = false, .palette = palettes::bark});
    }};
