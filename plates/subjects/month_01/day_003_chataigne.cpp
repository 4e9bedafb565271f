// Sweet chestnut, Castanea sativa: a burr of fine branched spines, open upon three pointed brown nuts; long
// lance leaves with bristle teeth.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_003_chataigne", [](Plate& p) {
        twig(p, {{70, 84}, {140, 66}, {220, 74}, {330, 58}}, {5, 4, 2.6});
        LeafForm blade{
            .width = 17, .shape = shapes::lance, .margin = serrate(15, 0.2), .veins = 14, .slant = 0.12};
        leaf(p, {{128, 68}, {96, 104}, {66, 176}}, blade);
        blade.palette = palettes::leafy;
        leaf(p, {{286, 66}, {322, 104}, {340, 178}}, blade);
        blade.palette = palettes::oldleaf;
        leaf(p, {{240, 72}, {276, 42}, {330, 22}}, blade);
        blade.palette = palettes::leaf;
        leaf(p, {{160, 66}, {134, 40}, {80, 24}}, blade);
        const Point middle{202, 184};
        stem(p, {{202, 72}, {204, 90}, {202, 112}}, {3, 3.4});
        ball(p, middle, 64, {.palette = palettes::burr, .tone = 0.18, .lines = Lines::none, .contour = 0});
        for (int k = 0; k < 620; ++k) {
            const double a = p.random.uniform(0, 360);
            const double r = 70 * maths::pow(p.random.uniform(0.2, 1), 0.5);
            const Point from = polar(middle, a, r * 0.86);
            const double shade = 0.5 + 0.5 * dot(direction(a), direction(55));
            p.stroke({from, polar(from, a + p.random.around(34), 9 + 6 * r / 70)},
                     {.width = 0.55 + 0.45 * shade,
                      .swell = 0,
                      .fade = 0.7,
                      .colour = mix(Colour(0x6B6128), sepia, 0.35 + 0.4 * shade)});
        }
        const Path mouth = closedSpline(
            {{156, 190}, {172, 154}, {204, 142}, {238, 156}, {250, 192}, {232, 226}, {202, 238}, {170, 224}});
        p.knockOut(mouth, {.halo = 0.4, .shade = 0});
        p.flat(mouth, palettes::cream, 0.42);
        p.contour(mouth, 1.0);
        {
            const Plate::Clip inside(p, mouth);
            for (int k = 0; k < 90; ++k) {
                const Point from = along(mouth, p.random.uniform());
                p.stroke({from, lerp(from, middle, 0.16)}, {.width = 0.7, .swell = 0, .fade = 0.8});
            }
        }
        nut(p, {178, 216}, -98, 24, 54);
        nut(p, {226, 218}, -82, 24, 54);
        nut(p, {202, 226}, -90, 21, 60, palettes::brown);
        ground(p, 262, 350, 290, 4);
        nut(p, {304, 288}, -92, 26, 48);
    }};
