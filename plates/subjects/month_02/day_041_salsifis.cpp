// Salsify, Tragopogon porrifolius: a long pale taper bearded with hair roots, grass leaves, a purple head
// with green bracts longer than its rays.

#include "plates/engraver/Maths.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/RootVegetable.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_041_salsifis", [](Plate& p) {
        rootVegetable(p, {.crown = {196, 204},
                          .length = 118,
                          .shape = {10, 13, 12.5, 11, 9, 6, 3},
                          .tail = 26,
                          .palette = palettes::root,
                          .rough = 0.05,
                          .lenticels = 26,
                          .hairs = 30,
                          .leaf = {.shape = shapes::linear,
                                   .parallel = true,
                                   .petiole = 0,
                                   .palette = palettes::bluegreen},
                          .leaves = 8,
                          .leafLength = 150,
                          .leafWidth = 4.6,
                          .leafSpread = 62});
        tube(p, {{196, 208}, {202, 160}, {204, 116}, {203, 94}}, {2.6, 2.8, 5},
             {.palette = palettes::bluegreen});
        const Point head{203, 76};
        for (int k = 0; k < 8; ++k) {
            const double a = k * 45.0 + 22;
            leaflet(p, head,
                    head + Point{maths::cos(maths::radians(a)) * 66, maths::sin(maths::radians(a)) * 46},
                    {.width = 4.4, .palette = palettes::leaf});
        }
        compositeHead(p, head + Point{0, 6}, -90,
                      {.rays = 18,
                       .length = 44,
                       .width = 6,
                       .shape = {0.5, 0.8, 0.95, 1, 1, 0.8},
                       .palette = palettes::purple,
                       .rings = 3,
                       .disc = 0,
                       .baseAngle = 60,
                       .tipAngle = 88,
                       .tilt = 52,
                       .involucre = 8});
    }};
