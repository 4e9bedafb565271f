// Walnut, Juglans regia: feathered leaf of seven broad leaflets, a green husk splitting on the furrowed
// shell; an opened half with its brain-like kernel.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_344_noix", [](Plate& p) {
        twig(p, {{84, 70}, {150, 58}, {220, 68}}, {6, 5, 4});
        const LeafKind leaf{.build = LeafKind::Build::pinnate,
                            .shape = shapes::elliptic,
                            .veins = 7,
                            .petiole = 0.14,
                            .leaflets = 3,
                            .leafletWidth = 0.34};
        growLeaf(p, {214, 66}, 22, 152, 44, leaf, 22);
        growLeaf(p, {116, 63}, 108, 124, 36, leaf, 12);
        const auto shell = [&](Point at, double r) {
            ball(p, at, r, {.palette = palettes::wood, .direction = -90, .squash = 1.14});
            p.stroke(spline({at + Point{2, -r * 1.1}, at + Point{r * 0.12, 0}, at + Point{0, r * 1.12}}),
                     {.width = 1.3});
            for (int k = 0; k < 22; ++k) {
                const Point s = at + Point{p.random.around(r * 0.68), p.random.around(r * 0.74)};
                p.stroke(spline({s, s + Point{2 + p.random.around(2), 4}, s + Point{p.random.around(3), 9}}),
                         {.width = 0.8});
            }
        };
        stem(p, {{176, 60}, {182, 78}, {184, 96}}, {3, 3.4});
        shell({184, 150}, 38);
        for (const double side : {-1.0, 1.0}) {
            const Path valve = spline({{184 + side * 2, 96},
                                       {184 + side * 40, 108},
                                       {184 + side * 53, 150},
                                       {184 + side * 42, 190},
                                       {184 + side * 32, 202}});
            const Path inner = spline({{184 + side * 2, 96},
                                       {184 + side * 14, 116},
                                       {184 + side * 26, 148},
                                       {184 + side * 30, 180},
                                       {184 + side * 32, 202}});
            const Path outline = band(valve, inner);
            relief(p, outline, {.palette = palettes::leaf, .bevel = 16});
            for (int k = 0; k < 12; ++k)
                p.dot(Point{184 + side * p.random.uniform(33, 46), p.random.uniform(120, 186)}, 0.9);
        }
        ground(p, 96, 300, 302, 4);
        shell({140, 272}, 30);
        const Path rim = ellipse({230, 270}, 38, 32);
        relief(p, rim, {.palette = palettes::wood, .bevel = 6});
        const Path kernelBed = ellipse({230, 269}, 32, 26);
        p.flat(kernelBed, Colour(0x9A7448));
        p.contour(kernelBed, 0.7);
        for (const double side : {-1.0, 1.0})
            for (const Point& d : {Point{14, -12}, Point{21, 0}, Point{14, 12}, Point{8, -1}})
                ball(p, Point{230 + side * d.x, 269 + d.y}, 8.6,
                     {.palette = palettes::fawn, .direction = 40 + side * 60, .squash = 1.1});
        p.stroke({{230, 246}, {231, 268}, {230, 292}}, {.width = 1.8});
    }};
