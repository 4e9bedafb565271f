// Fennel, Foeniculum vulgare: thread leaves, flat yellow umbels, a swollen bulb of clasping leaf bases.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

#include <tuple>

using namespace tambrelle::engraver;

static const Subject subject{
    "day_342_fenouil", [](Plate& p) {
        const LeafKind threads{
            .build = LeafKind::Build::frond, .leaflets = 6, .leafletWidth = 0.08, .subdivided = 6};
        for (const auto& [x, way, size] : {std::tuple{182.0, -138.0, 140.0}, std::tuple{218.0, -42.0, 140.0},
                                           std::tuple{190.0, -112.0, 150.0}, std::tuple{210.0, -66.0, 150.0}})
            growLeaf(p, {x, 262}, way, size, 22, threads, way < -90 ? -12 : 12);
        for (const auto& [tip, reach] : {std::pair{Point{146, 128}, 38.0}, std::pair{Point{258, 124}, 38.0},
                                         std::pair{Point{202, 86}, 46.0}}) {
            const Path axis{{200, 268}, {(200 + tip.x) / 2 + (tip.x - 200) * 0.1, 190}, tip};
            stem(p, axis, {4, 3, 2}, palettes::stem);
            umbel({.rays = 13,
                   .length = reach,
                   .raylets = 10,
                   .rayletLength = 10,
                   .floretRadius = 2.6,
                   .palette = palettes::yellow})(p, spline(axis));
        }
        rootlets(p, {200, 338}, 12, 90, 100, 20);
        for (const double side : {-1.0, 1.0})
            leaf(p,
                 {{200 + side * 8, 340},
                  {200 + side * 48, 304},
                  {200 + side * 36, 262},
                  {200 + side * 26, 236}},
                 {.width = 17,
                  .shape = {0.7, 1, 1, 0.8, 0.5, 0.3},
                  .palette = mix(palettes::whiteflower, palettes::leafy, 0.5),
                  .veins = 0,
                  .parallel = true});
        leaf(p, {{200, 344}, {180, 304}, {188, 256}, {184, 228}},
             {.width = 25,
              .shape = {0.5, 0.95, 1, 0.75, 0.4, 0.25},
              .palette = mix(palettes::whiteflower, palettes::leafy, 0.4),
              .veins = 0,
              .parallel = true});
        leaf(p, {{202, 344}, {224, 304}, {214, 258}, {214, 230}},
             {.width = 25,
              .shape = {0.5, 0.95, 1, 0.75, 0.4, 0.25},
              .palette = mix(palettes::whiteflower, palettes::leafy, 0.3),
              .veins = 0,
              .parallel = true});
        leaf(p, {{201, 345}, {202, 310}, {201, 276}, {200, 250}},
             {.width = 24,
              .shape = {0.5, 0.95, 1, 0.7, 0.35, 0.2},
              .palette = mix(palettes::whiteflower, palettes::leafy, 0.25),
              .veins = 0,
              .parallel = true});
    }};
