// Bilberry, Vaccinium myrtillus: green angled twigs, small ovate toothed leaves, dark blue bloomy berries
// with a flat crown.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_209_myrtille", [](Plate& p) {
        const LeafKind small{
            .shape = shapes::ovate, .margin = serrate(13, 0.08), .veins = 5, .petiole = 0.05};
        const auto berry = [&](Point from, Point at, double r) {
            stem(p, {from, lerp(from, at, 0.5) + Point{3, -3}, at + Point{0, -r}}, {2.6, 2.4});
            ball(p, at, r, {.palette = mix(palettes::berry, palettes::blue, 0.35), .tone = -0.04});
            const Point crown = at + Point{-r * 0.12, r * 0.3};
            p.flat(ellipse(crown, r * 0.46, r * 0.36), palettes::berry, 0.85);
            for (int k = 0; k < 5; ++k)
                p.stroke({polar(crown, k * 72 + 18, r * 0.3), polar(crown, k * 72 + 18, r * 0.62)},
                         {.width = 1.7, .swell = 0, .fade = 0.5, .colour = Colour(0x1C2338)});
            p.contour(ellipse(crown, r * 0.46, r * 0.36), 0.8);
        };
        const Path a = branch(p, {.spine = {{200, 344}, {190, 260}, {140, 160}, {104, 60}},
                                  .radius = {5, 3.4, 2},
                                  .bark = palettes::stem,
                                  .leaf = small,
                                  .leaves = {{0.22, -150, 84, 20},
                                             {0.4, -10, 66, 16},
                                             {0.5, -165, 80, 19},
                                             {0.68, -20, 76, 18},
                                             {0.76, -170, 74, 18},
                                             {0.9, -20, 66, 16},
                                             {0.99, -100, 60, 15}}});
        const Path b = branch(p, {.spine = {{196, 310}, {226, 240}, {270, 170}, {304, 80}},
                                  .radius = {4.4, 3.2, 2},
                                  .bark = palettes::stem,
                                  .leaf = small,
                                  .leaves = {{0.2, 0, 84, 20},
                                             {0.5, -5, 82, 19},
                                             {0.62, -140, 66, 16},
                                             {0.76, -10, 74, 18},
                                             {0.88, -150, 68, 17},
                                             {0.99, -70, 64, 16}}});
        berry(along(a, 0.34), {146, 258}, 25);
        berry(along(a, 0.62), {176, 200}, 24);
        berry(along(b, 0.36), {270, 264}, 26);
        berry(along(b, 0.62), {298, 190}, 23);
    }};
