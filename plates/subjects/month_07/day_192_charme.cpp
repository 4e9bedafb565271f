// Hornbeam, Carpinus betulus: pleated doubly toothed leaves, hanging chains of nutlets under three-lobed
// bracts.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_192_charme", [](Plate& p) {
        const Path bough = twig(p, {{70, 76}, {150, 62}, {230, 74}, {330, 58}}, {4.8, 3.6, 2});
        const LeafKind pleated{.shape = {0.4, 0.85, 1, 0.96, 0.76, 0.4, 0},
                               .margin = serrate(18, 0.13),
                               .veins = 13,
                               .slant = 0.2,
                               .pucker = 0.3,
                               .petiole = 0.08};
        for (const BranchLeaf& l :
             {BranchLeaf{0.1, 112, 126, 30}, BranchLeaf{0.96, 66, 128, 30}, BranchLeaf{0.5, 84, 112, 28},
              BranchLeaf{0.3, -128, 70, 19}, BranchLeaf{0.66, -52, 74, 20}})
            growLeaf(p, along(bough, l.at), l.degrees, l.length, l.width, pleated, 5);
        const auto bract = [&](Point at, double degrees, double size) {
            for (const double a : {-44.0, 44.0, 0.0})
                leaflet(p, at, polar(at, degrees + a, size * (std::fabs(a) < 1 ? 1 : 0.6)),
                        {.width = size * 0.14, .palette = palettes::leafy, .shape = shapes::elliptic});
            ball(p, polar(at, degrees, size * 0.12), size * 0.15,
                 {.palette = palettes::brown, .direction = degrees});
        };
        const auto chain = [&](Point from, Point to) {
            const Path curve = stem(p, {from, lerp(from, to, 0.5) + Point{-4, 0}, to}, {1.8, 1.2});
            for (int k = 0; k < 7; ++k) {
                const double q = 0.96 - 0.118 * k;
                for (const int side : {-1, 1})
                    bract(along(curve, q), 90 - side * (k == 0 ? 16 : 34), 44 - 1.5 * (6 - k));
            }
        };
        chain(along(bough, 0.3), {146, 300});
        chain(along(bough, 0.72), {254, 292});
    }};
