// Plane, Platanus: bark that flakes in pale patches, five-pointed leaves, spiky balls hanging on a long
// stalk.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Habit.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_182_platane", [](Plate& p) {
        trunk(p, {98, 340}, {98, 40}, 36, {.bark = TrunkForm::Bark::plane});
        const Path bough = twig(p, {{124, 92}, {176, 78}, {236, 66}, {296, 72}}, {6, 4.4, 2.6});
        const LeafKind star{.build = LeafKind::Build::palmate,
                            .petiole = 0.26,
                            .lobes = {{-96, 0.56}, {-48, 0.86}, {0, 1}, {48, 0.86}, {96, 0.56}},
                            .sinus = 0.6,
                            .teeth = 2,
                            .toothHeight = 4,
                            .bulge = 0.7};
        growLeaf(p, along(bough, 0.44), 70, 150, 60, star);
        growLeaf(p, along(bough, 0.98), 66, 132, 54, star);
        growLeaf(p, along(bough, 0.66), -64, 86, 40, star);
        const auto fruit = [&](Point at, double size) {
            ball(p, at, size, {.palette = palettes::burr, .tone = 0.1, .lines = Lines::none, .contour = 0});
            for (int k = 0; k < 300; ++k) {
                const double a = p.random.uniform(0, 360), r = size * maths::pow(p.random.uniform(0, 1), 0.5);
                const double shade = 0.5 + 0.5 * dot(direction(a), direction(50)) * r / size;
                p.stroke({polar(at, a, r), polar(at, a, r + size * 0.2)},
                         {.width = 0.5 + 0.5 * shade, .swell = 0, .fade = 0.6});
            }
        };
        stem(p, {along(bough, 0.3), {186, 130}, {178, 190}, {186, 250}, {190, 296}}, {1.8, 1.4},
             palettes::burr);
        fruit({179, 214}, 23);
        fruit({191, 300}, 25);
    }};
