// Horsetail, Equisetum arvense: jointed stems with whorls of thin branches, and a pale fertile stem with dark
// toothed sheaths and a cone on top.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

#include <cmath>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_306_prele", [](Plate& p) {
        const auto sterile = [&](const Path& spine, double reach) {
            const Path curve = stem(p, spine, {3.4, 2.8, 1.2}, palettes::leaf);
            for (int node = 0; node < 12; ++node) {
                const double q = 0.14 + node * 0.073;
                const Point at = along(curve, q);
                const double way = angleAlong(curve, q);
                const double size = reach * (node == 0 ? 0.7 : 1) * (1 - 0.064 * node);
                for (int k = 0; k < 12; ++k) {
                    const double f = ((k * 5) % 12 - 5.5) / 5.5;
                    const double a = way + f * 70;
                    const Point mid = polar(at, a, size * 0.5 * (0.5 + 0.5 * std::fabs(f)));
                    const Point end = polar(mid, a - f * 20, size * 0.5 * (0.5 + 0.5 * std::fabs(f)));
                    tube(p, {at, mid, end}, {1.1, 1, 0.4},
                         {.palette = palettes::leaf, .lines = Lines::none, .contour = 0.5, .shade = 0.1});
                }
                tube(p, {polar(at, way, -4), polar(at, way, 4)}, {3.4 - 0.16 * node, 3.8 - 0.18 * node},
                     {.palette = palettes::darkleaf, .lines = Lines::along});
            }
        };
        sterile({{150, 344}, {148, 250}, {140, 62}}, 82);
        const Path fertile = tube(p, {{262, 344}, {262, 250}, {268, 146}}, {5, 4.6, 4},
                                  {.palette = palettes::root, .lines = Lines::along});
        for (const double q : {0.1, 0.35, 0.6, 0.84}) {
            const Point at = along(fertile, q);
            const double way = angleAlong(fertile, q);
            for (const double f : {-1.0, 1.0, -0.5, 0.5, 0.0})
                leaflet(p, polar(at, way + 90, f * 4), polar(polar(at, way, 26), way + 90, f * 9),
                        {.width = 2.6, .palette = palettes::brown, .tone = 0.3});
            tube(p, {at, polar(at, way, 14)}, {5.4, 7}, {.palette = palettes::straw, .lines = Lines::along});
        }
        scales(p, {268, 150}, -86,
               {.radius = 16,
                .length = 78,
                .shape = {0.7, 0.95, 1, 0.9, 0.4},
                .rows = 11,
                .perRow = 9,
                .scaleShape = shapes::orbicular,
                .palette = palettes::fawn,
                .spread = 12});
        ground(p, 110, 300, 344, 3);
    }};
