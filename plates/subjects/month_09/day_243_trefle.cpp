// Red clover, Trifolium pratense: three leaflets with a pale chevron, round rosy heads seated on a pair of
// leaves.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_243_trefle", [](Plate& p) {
        const LeafKind three{.build = LeafKind::Build::trifoliate, .shape = shapes::elliptic, .veins = 6};
        const auto chevron = [&](Point hub, double degrees, double size) {
            for (const double turn : {-72.0, 0.0, 72.0}) {
                const Point d = direction(degrees + turn), at = hub + d * (size * 0.3);
                p.stroke({at + rightOf(d) * (size * 0.12) - d * 4, at + d * 4,
                          at - rightOf(d) * (size * 0.12) - d * 4},
                         {.width = 3, .swell = 0.2, .fade = 0.2, .colour = 0xEDEFD6, .alpha = 0.85});
            }
        };
        struct Blade {
            Point from;
            double degrees, size;
        };
        rootlets(p, {200, 336}, 14, 90, 120, 20);
        for (const Blade& b : {Blade{{196, 334}, -164, 118}, Blade{{204, 334}, -16, 118},
                               Blade{{197, 334}, -138, 136}, Blade{{203, 334}, -42, 136}}) {
            growLeaf(p, b.from, b.degrees, b.size, 18, three);
            chevron(polar(b.from, b.degrees, b.size * 0.45), b.degrees, b.size);
        }
        for (const Path& spine :
             {Path{{198, 334}, {176, 250}, {124, 150}}, Path{{202, 334}, {224, 250}, {276, 150}},
              Path{{200, 334}, {203, 230}, {200, 118}}}) {
            stem(p, spine, {2.8, 2.2});
            const Point tip = spine.back();
            const double way = angleOf(tip - spine[1]);
            for (const double turn : {-78.0, 78.0}) {
                growLeaf(p, polar(tip, way, -6), way + turn, 72, 11, three);
                chevron(polar(polar(tip, way, -6), way + turn, 72 * 0.45), way + turn, 72);
            }
            globeHead(p, polar(tip, way, -4), way,
                      {.radius = 29,
                       .petal = 13,
                       .petalWidth = 3.2,
                       .count = 110,
                       .squash = 0.92,
                       .palette = mix(palettes::rose, palettes::magenta, 0.3)});
        }
    }};
