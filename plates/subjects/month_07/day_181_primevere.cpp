// Primrose, Primula vulgaris: a rosette of rugose obovate leaves, pale yellow notched flowers with an
// orange eye, each on its own hairy stalk.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_181_primevere", [](Plate& p) {
        const LeafKind rugose{.shape = {0.25, 0.4, 0.62, 0.88, 1, 0.86, 0},
                              .margin = crenate(13, 0.09),
                              .veins = 8,
                              .pucker = 0.3,
                              .petiole = 0.06};
        for (const double a : {-172.0, -8.0, -148.0, -32.0, -122.0, -58.0})
            growLeaf(p, {200, 308}, a, 122, 27, rugose, a < -90 ? -12 : 12);
        rootlets(p, {200, 312}, 16, 90, 120, 26);
        const FlowerForm blossom{.length = 33,
                                 .width = 17,
                                 .baseAngle = 74,
                                 .tipAngle = 90,
                                 .palette = palettes::yellow,
                                 .cup = 2.6,
                                 .notch = 0.2,
                                 .tilt = 66,
                                 .tube = 16,
                                 .tubeRadius = 3.4,
                                 .eye = 6,
                                 .eyePalette = palettes::orange,
                                 .washLift = 0.12};
        struct Bloom {
            Point tip;
            double degrees;
        };
        for (const Bloom& b : {Bloom{{118, 186}, -140}, Bloom{{284, 184}, -40}, Bloom{{164, 130}, -110},
                               Bloom{{240, 126}, -66}, Bloom{{202, 196}, -92}}) {
            stem(p, {{200, 310}, lerp(Point{200, 300}, b.tip, 0.5) + Point{0, -6}, b.tip}, {2.2, 1.8},
                 mix(palettes::stem, palettes::redstem, 0.3));
            flower(p, b.tip, b.degrees, blossom);
        }
        for (const double a : {-160.0, -20.0, -104.0})
            growLeaf(p, {200, 312}, a, 92, 24, rugose, a < -90 ? -14 : 14);
    }};
