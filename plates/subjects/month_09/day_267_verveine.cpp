// Vervain, Verbena officinalis: a stiff square stem branched like a candlestick, deeply cut leaves, thin
// spikes of tiny lilac flowers.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_267_verveine", [](Plate& p) {
        const LeafKind cut{.shape = shapes::obovate, .margin = lobed(4, 0.55), .veins = 4, .petiole = 0.06};
        rootlets(p, {200, 344}, 14, 90, 120, 16);
        tube(p, {{200, 346}, {202, 250}, {200, 64}}, {3, 2.4, 0.9});
        const auto candle = [&](const Path& spine) {
            const Path curve = stem(p, spine, {1.9, 1.4, 0.8});
            spike({.radius = 2.6,
                   .from = 0.42,
                   .grain = 1.7,
                   .palette = palettes::leaf,
                   .second = palettes::stem})(p, curve);
            for (int k = 0; k < 9; ++k) {
                const double q = 0.46 + 0.035 * k;
                const double side = k % 2 == 0 ? -1 : 1;
                const double way = angleAlong(curve, q) + side * 62;
                const Point at = polar(along(curve, q), way, 2.5);
                flower(p, at, way,
                       {.length = 6.4,
                        .width = 3.6,
                        .baseAngle = 62,
                        .tipAngle = 88,
                        .shape = shapes::orbicular,
                        .palette = palettes::violet,
                        .tilt = 54,
                        .eye = 1},
                       1.15 - 0.05 * k);
            }
        };
        for (const auto& [y, reach, top] :
             {std::tuple{228.0, 112.0, 96.0}, {190.0, 74.0, 74.0}, {154.0, 38.0, 62.0}})
            for (const double side : {-1.0, 1.0})
                candle({{200, y}, {200 + side * reach * 0.72, y - 34}, {200 + side * reach, top}});
        candle({{200, 190}, {201, 130}, {200, 52}});
        for (const auto& [y, size] : {std::pair{304.0, 104.0}, {262.0, 92.0}, {228.0, 62.0}, {190.0, 40.0}})
            for (const double side : {-1.0, 1.0})
                growLeaf(p, {201, y}, -90 + side * 66, size, size * 0.24, cut, side * 18);
    }};
