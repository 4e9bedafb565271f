// Dog rose, Rosa canina: prickly arching stems, leaves of seven toothed leaflets, single pink flowers of five
// notched petals, red flask-shaped hips.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Branch.h"
#include "plates/engraver/botany/CompoundLeaf.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_351_eglantine", [](Plate& p) {
        const LeafKind seven{.build = LeafKind::Build::pinnate,
                             .shape = shapes::ovate,
                             .margin = serrate(9, 0.15),
                             .veins = 5,
                             .petiole = 0.14,
                             .leaflets = 3,
                             .leafletWidth = 0.3};
        const Path cane = stem(p, {{78, 330}, {112, 230}, {176, 146}, {262, 104}, {336, 124}},
                               {4.6, 3.8, 2.2}, palettes::stem);
        growLeaf(p, along(cane, 0.16), 10, 112, 27, seven, 16);
        growLeaf(p, along(cane, 0.34), -160, 96, 24, seven, 10);
        growLeaf(p, along(cane, 0.6), -112, 88, 23, seven, 10);
        growLeaf(p, along(cane, 0.96), 66, 100, 25, seven, 10);
        for (int k = 0; k < 8; ++k)
            thorn(p, along(cane, 0.08 + k * 0.11),
                  angleAlong(cane, 0.08 + k * 0.11) + (k % 2 == 0 ? 112 : -112), 12, palettes::redstem);
        const auto hip = [&](double q, Point at) {
            const Point from = along(cane, q);
            stem(p, {from, lerp(from, at, 0.6) + Point{2, -4}, at}, {1.6, 1.6});
            for (const double a : {50.0, 130.0, 70.0, 110.0, 90.0})
                leaflet(p, at + Point{0, 40}, polar(at + Point{0, 40}, a, 15),
                        {.width = 2.4, .palette = palettes::oldleaf});
            lathe(p, at, 43, {4, 12, 17, 18.5, 17, 12, 5.5},
                  {.direction = 90,
                   .tilt = 0.1,
                   .palette = palettes::scarlet,
                   .lines = Lines::along,
                   .highlight = 0.2});
        };
        hip(0.56, {206, 188});
        hip(0.72, {262, 182});
        hip(0.5, {166, 226});
        const FlowerForm rose{.length = 46,
                              .width = 28,
                              .baseAngle = 68,
                              .tipAngle = 92,
                              .shape = {0.25, 0.6, 0.9, 1, 0.95, 0.55},
                              .palette = palettes::pink,
                              .notch = 0.16,
                              .ruffle = 1.2,
                              .tilt = 66,
                              .eye = 5,
                              .stamens = 26,
                              .stamenLength = 0.36,
                              .sepals = 5};
        stem(p, {along(cane, 0.48), {160, 120}, {156, 104}}, {1.8, 1.6});
        flower(p, {154, 106}, -112, rose);
        stem(p, {along(cane, 0.8), {286, 90}, {292, 78}}, {1.8, 1.6});
        flower(p, {292, 80}, -66, rose, 0.82);
    }};
