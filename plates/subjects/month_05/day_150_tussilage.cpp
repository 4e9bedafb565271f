// Coltsfoot, Tussilago farfara, in leaf: broad hoof-shaped leaves, felted below, and one last flower on its
// scaly stalk.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_150_tussilage", [](Plate& p) {
        tube(p, {{120, 340}, {180, 330}, {240, 334}, {290, 328}}, {4, 4.6, 4},
             {.palette = palettes::root, .rough = 0.1});
        for (int k = 0; k < 6; ++k)
            rootlets(p, {134 + 28.0 * k, 334}, 2, 90, 50, 18);
        const std::vector<Lobe> hoof = {{-138, 0.62}, {-96, 0.86}, {-50, 0.95}, {0, 1},
                                        {50, 0.95},   {96, 0.86},  {138, 0.62}};
        const auto foot = [&](const Path& stalk, double degrees, double size, const Palette& palette) {
            stem(p, stalk, {3.6, 3}, palettes::redstem);
            palmateLeaf(p, stalk.back(), degrees, size,
                        {.lobes = hoof,
                         .sinus = 0.86,
                         .teeth = 2,
                         .toothHeight = 2.6,
                         .palette = palette,
                         .bulge = 1.3});
        };
        stem(p, {{214, 330}, {224, 230}, {216, 110}}, {4, 4}, palettes::redstem);
        for (int k = 0; k < 9; ++k) {
            const double y = 300 - 21.0 * k;
            const double s = k % 2 == 0 ? 1 : -1;
            leaflet(p, {220 - 3 * s, y}, {220 + 9 * s, y - 22},
                    {.width = 4.4, .palette = mix(palettes::redstem, palettes::leafy, 0.4)});
        }
        compositeHead(p, {216, 104}, -82,
                      {.rays = 44,
                       .length = 30,
                       .width = 1.9,
                       .palette = palettes::yellow,
                       .rings = 2,
                       .disc = 10,
                       .baseAngle = 68,
                       .tipAngle = 86,
                       .tilt = 52,
                       .involucre = 11,
                       .washLift = 0.28});
        foot({{200, 330}, {172, 280}, {130, 236}}, -112, 82, palettes::leaf);
        foot({{228, 330}, {260, 290}, {294, 256}}, -62, 78, palettes::leafy);
        foot({{190, 332}, {170, 316}, {146, 308}}, -172, 56, palettes::greygreen);
    }};
