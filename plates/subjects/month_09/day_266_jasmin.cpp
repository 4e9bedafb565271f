// Jasmine, Jasminum officinale: opposite pinnate leaves of seven pointed leaflets, white five-lobed stars on
// long slender tubes, rosy buds.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_266_jasmin", [](Plate& p) {
        const Path vine =
            stem(p, {{110, 312}, {140, 262}, {184, 224}, {216, 160}, {214, 110}}, {3, 2.6, 1.8});
        const LeafKind feather{.build = LeafKind::Build::pinnate,
                               .shape = shapes::lance,
                               .veins = 4,
                               .petiole = 0.1,
                               .leaflets = 3,
                               .leafletWidth = 0.17};
        growLeaf(p, along(vine, 0.12), -170, 96, 21, feather, 16);
        growLeaf(p, along(vine, 0.12), 20, 108, 23, feather, -16);
        growLeaf(p, along(vine, 0.44), -160, 110, 23, feather, -14);
        growLeaf(p, along(vine, 0.44), 22, 116, 24, feather, -10);

        const Point hub{214, 112};
        for (const double a : {-128.0, -52.0}) {
            const Point tip = polar(hub, a, 64);
            tube(p, {hub, lerp(hub, tip, 0.6), tip}, {1.1, 1.4, 3.6, 3.4, 0.6},
                 {.palette = palettes::pink, .lines = Lines::along});
        }
        for (const double a : {-178.0, -2.0, -148.0, -32.0, -108.0, -74.0})
            tube(p, {hub, polar(hub, a - 3, 36), polar(hub, a, 68)}, {1.3, 1.7, 2.6},
                 {.palette = palettes::cream, .lines = Lines::along, .contour = 0.75});
        for (const double a : {-178.0, -2.0, -148.0, -32.0, -108.0, -74.0})
            flower(p, polar(hub, a, 66), a,
                   {.length = 32,
                    .width = 11,
                    .baseAngle = 74,
                    .tipAngle = 92,
                    .shape = {0.4, 0.85, 1, 0.75, 0},
                    .palette = palettes::whiteflower,
                    .cup = 2.6,
                    .tilt = 72,

                    .eye = 1.6,
                    .washLift = 0},
                   1);
    }};
