// Spelt, Triticum spelta: a lax slender ear, the spikelets stand apart so that the bare axis shows; short
// awns.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Cereal.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_301_epeautre", [](Plate& p) {
        cereal(p,
               {.height = 272,
                .headLength = 180,
                .stems = {-74, 70, -2},
                .nod = 10,
                .leaves = 2,
                .head = [](Plate& plate, const Path& spine) {
                    const Path curve = spline(spine);
                    stem(plate, spine, {2.1, 1.5}, palettes::straw);
                    for (int k = 0; k < 10; ++k) {
                        const double q = 0.02 + k * 0.105;
                        const Point at = along(curve, q);
                        const double way = angleAlong(curve, q) + (k % 2 == 0 ? 22 : -22);
                        for (const double turn : {-9.0, 9.0})
                            plate.stroke({polar(at, way, 16), polar(at, way + turn * 0.6, 26)},
                                         {.width = 0.75, .swell = 0, .fade = 0.8});
                        for (const double turn : {13.0, -13.0})
                            leaflet(plate, at, polar(at, way + turn, 23),
                                    {.width = 4.6,
                                     .palette = palettes::straw,
                                     .shape = shapes::ovate,
                                     .tone = 0.22});
                        leaflet(
                            plate, at, polar(at, way, 19),
                            {.width = 4.6, .palette = palettes::straw, .shape = shapes::ovate, .tone = 0.1});
                    }
                }});
    }};
