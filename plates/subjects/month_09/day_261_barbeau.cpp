// Cornflower, Centaurea cyanus: grey linear leaves, a scaly urn under a crown of flaring blue trumpets.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Inflorescence.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_261_barbeau", [](Plate& p) {
        herb(p,
             {.height = 204,
              .stems = {-66, 66, 0},
              .stemRadius = 2.2,
              .stemPalette = palettes::greygreen,
              .leaf =
                  {.shape = shapes::linear, .parallel = true, .petiole = 0, .palette = palettes::greygreen},
              .leaves = 6,
              .leavesFrom = 0.06,
              .leavesTo = 0.82,
              .leafLength = 94,
              .topLeafLength = 44,
              .leafWidth = 4.4,
              .topLeafWidth = 3,
              .leafAngle = 34,
              .root = RootKind::taproot,
              .inflorescence = solitary([](Plate& plate, Point at, double degrees, double scale, int) {
                  for (int k = 0; k < 9; ++k) {
                      const int place = k % 2 == 0 ? k / 2 : 8 - k / 2;
                      const double a = degrees + (place - 4) * 25.0;
                      const Point base = polar(at, degrees, 18 * scale);
                      tube(plate, {base, polar(base, a, 12 * scale)}, {1.2, 2.2},
                           {.palette = palettes::blue, .lines = Lines::along});
                      for (const double turn : {-34.0, 34.0, -13.0, 13.0}) {
                          const Point from = polar(base, a, 9 * scale);
                          leaflet(plate, from, polar(from, a + turn, (26 - 0.14 * std::fabs(turn)) * scale),
                                  {.width = 4 * scale,
                                   .palette = palettes::blue,
                                   .shape = shapes::lance,
                                   .tone = 0.3});
                      }
                  }
                  for (int k = 0; k < 7; ++k) {
                      const double a = degrees + (k - 3) * 15.0;
                      const Point base = polar(at, degrees, 20 * scale);
                      leaflet(plate, base, polar(base, a, 19 * scale),
                              {.width = 1.7, .palette = palettes::purple, .tone = 0.4});
                  }
                  scales(plate, at, degrees,
                         {.radius = 12, .length = 25, .rows = 6, .perRow = 8, .palette = palettes::leaf},
                         scale);
              })});
    }};
