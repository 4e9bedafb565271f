// Alder, Alnus glutinosa: round leaves notched at the tip, tiny woody cones, hanging catkins.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Conifer.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_189_aulne", [](Plate& p) {
        const Path bough = twig(p, {{74, 96}, {140, 70}, {220, 72}, {326, 50}}, {5, 3.8, 2.2});
        const LeafKind round{.shape = {0.35, 0.72, 0.93, 1, 0.99, 0.86, 0.42},
                             .margin = serrate(12, 0.09),
                             .veins = 7,
                             .pucker = 0.2,
                             .petiole = 0.16,
                             .palette = palettes::darkleaf};
        for (const BranchLeaf& l :
             {BranchLeaf{0.08, 118, 116, 38}, BranchLeaf{0.98, 58, 108, 38}, BranchLeaf{0.66, 84, 112, 40},
              BranchLeaf{0.26, -110, 62, 24}, BranchLeaf{0.62, -62, 66, 26}})
            growLeaf(p, along(bough, l.at), l.degrees, l.length, l.width, round, 4);
        for (const auto& [at, x, len] :
             {std::tuple{0.26, -4.0, 130.0}, {0.32, 6.0, 158.0}, {0.38, 16.0, 120.0}}) {
            const Point from = along(bough, at);
            catkin(p, {from + Point{0, 3}, from + Point{x * 0.5, len * 0.5}, from + Point{x, len}}, 8,
                   mix(palettes::oldleaf, palettes::redstem, 0.35));
        }
        const Path side = twig(p, {along(bough, 0.52), {226, 120}, {240, 190}, {246, 214}}, {2.6, 1.8});
        for (const auto& [at, x, y] : {std::tuple{0.5, 210.0, 176.0},
                                       {0.7, 268.0, 208.0},
                                       {0.85, 216.0, 226.0},
                                       {1.0, 252.0, 250.0}}) {
            const Point from = along(side, at), to{x, y};
            twig(p, {from, lerp(from, to, 0.5), to}, {1.5, 1.3});
            cone(p, to, x > 230 ? 70 : 110,
                 {.length = 34,
                  .radius = 14,
                  .rows = 7,
                  .perRow = 6,
                  .palette = palettes::brown,
                  .spread = 24});
        }
    }};
