// Wild strawberry, Fragaria vesca: three toothed leaflets, a white flower, red fruits dotted with achenes
// under a green star.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_251_fraise", [](Plate& p) {
        const LeafKind three{.build = LeafKind::Build::trifoliate,
                             .shape = shapes::obovate,
                             .margin = serrate(7, 0.22),
                             .veins = 7,
                             .palette = palettes::leaf};
        rootlets(p, {200, 330}, 18, 90, 120, 24);
        growLeaf(p, {197, 328}, -152, 140, 21, three, 0);
        growLeaf(p, {203, 328}, -28, 140, 21, three, 0);
        growLeaf(p, {198, 328}, -116, 176, 25, three, 0);
        growLeaf(p, {202, 328}, -62, 176, 25, three, 0);
        const auto berry = [&](const Path& stalk, double size) {
            stem(p, stalk, {1.7, 1.4});
            const Point at = stalk.back();
            const LatheSurface fruit = lathe(
                p, at, size * 1.25,
                {size * 0.34, size * 0.52, size * 0.58, size * 0.52, size * 0.4, size * 0.24, size * 0.05},
                {.direction = 92,
                 .tilt = 0.1,
                 .palette = palettes::scarlet,
                 .lines = Lines::along,
                 .coverage = 0.3,
                 .highlight = 0.14});
            for (int row = 0; row < 6; ++row)
                for (int k = 0; k < 11; ++k) {
                    const double angle = k * 32.7 + (row % 2) * 16, u = 0.14 + row * 0.14;
                    if (fruit.facing(u, angle) > 0.2)
                        p.dot(fruit.at(u, angle), 1.15, Colour(0xF3D87A)),
                            p.stroke(
                                {fruit.at(u, angle) + Point{-1.2, 1}, fruit.at(u, angle) + Point{1.2, 1.4}},
                                {.width = 0.6});
                }
            for (const double a : {180.0, 0.0, 150.0, 30.0, 120.0, 60.0, 90.0})
                leaflet(p, at,
                        at + Point{direction(a).x * size * 0.66,
                                   direction(a).y * size * 0.36 - (std::fabs(direction(a).x) > 0.9 ? 4 : 0)},
                        {.width = 3.4});
        };
        berry({{196, 326}, {168, 250}, {120, 178}, {92, 196}}, 46);
        berry({{204, 326}, {234, 250}, {284, 178}, {312, 198}}, 46);
        berry({{200, 326}, {204, 220}, {232, 112}, {252, 126}}, 40);
        stem(p, {{200, 326}, {196, 210}, {168, 104}}, {1.8, 1.4});
        flower(p, {168, 104}, -104,
               {.length = 27,
                .width = 14,
                .baseAngle = 76,
                .tipAngle = 92,
                .shape = shapes::orbicular,
                .palette = palettes::whiteflower,
                .tilt = 72,
                .eye = 9,
                .stamens = 14,
                .stamenLength = 0.42,
                .sepals = 5,
                .washLift = 0});
    }};
