#include "plates/engraver/Face.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Iron.h"

using namespace tambrelle::engraver;

// The sickle: a narrow blade bent to more than half a circle, finely toothed within, in a short turned
// handle.
static const Subject subject{
    "day_280_faucille", [](Plate& p) {
        blade(p,
              {{146, 248},
               {112, 206},
               {100, 154},
               {120, 100},
               {170, 66},
               {230, 64},
               {284, 94},
               {312, 148},
               {312, 212}},
              {{158, 240},
               {130, 202},
               {122, 156},
               {138, 112},
               {178, 86},
               {226, 86},
               {270, 112},
               {298, 158},
               {312, 212}},
              {.palette = palettes::steel, .tone = 0.26, .rib = 0.25, .contour = 1.1});
        // Teeth along the inner edge.
        const Path edge =
            spline({{130, 202}, {122, 156}, {138, 112}, {178, 86}, {226, 86}, {270, 112}, {298, 158}});
        const Path even = resample(edge, 90), inward = normals(even);
        for (std::size_t k = 0; k < even.size(); ++k)
            p.stroke({even[k] + inward[k] * 0.3, even[k] - inward[k] * 5.0},
                     Pen{.width = 0.5, .swell = 0, .fade = 0.6, .wobble = 0});
        turnedHandle(p, {158, 240}, 58, 86, {9, 12, 14, 15, 17, 18, 17, 15, 17, 19, 17, 4});
        ferrule(p, {148, 224}, {164, 250}, {8, 11, 12.5});
    }};
