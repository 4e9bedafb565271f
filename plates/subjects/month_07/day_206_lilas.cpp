// Lilac, Syringa vulgaris: heart-shaped smooth leaves in pairs, a dense cone of four-lobed lilac flowers.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Inflorescence.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_206_lilas", [](Plate& p) {
        const LeafKind heart{.shape = shapes::cordate, .veins = 6, .petiole = 0.2};
        twig(p, {{200, 344}, {203, 290}, {200, 240}}, {5.5, 4.4, 3.4});
        growLeaf(p, {201, 300}, 168, 118, 34, heart, -6);
        growLeaf(p, {201, 300}, 12, 118, 34, heart, 6);
        growLeaf(p, {200, 256}, -152, 128, 36, heart, -14);
        growLeaf(p, {200, 256}, -28, 128, 36, heart, 14);
        const Path axis = stem(p, {{200, 246}, {202, 150}, {200, 50}}, {3, 1.6});
        const FlowerForm floretForm{.petals = 4,
                                    .length = 12,
                                    .width = 6.8,
                                    .baseAngle = 74,
                                    .tipAngle = 90,
                                    .shape = shapes::elliptic,
                                    .palette = mix(palettes::lilac, palettes::violet, 0.45),
                                    .tilt = 62,
                                    .tube = 8,
                                    .tubeRadius = 1.7,
                                    .eye = 1.5,
                                    .washLift = 0.14};
        const auto one = flowers(floretForm);
        for (int row = 0; row < 15; ++row) {
            const double t = row / 14.0, half = 62 * maths::pow(1 - t, 0.75) * (0.72 + 0.6 * t) + 3;
            const int n = 2 + static_cast<int>(half / 8.8);
            for (int k = 0; k < n; ++k) {
                const double x = -half + 2 * half * (k + 0.5) / n + p.random.around(3);
                one(p, {200 + x, 238 - 188 * t + p.random.around(5)}, -90 + x * 0.9, 1 - 0.25 * t,
                    x < 0 ? -1 : 1);
            }
        }
    }};
