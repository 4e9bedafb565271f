#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Stone.h"
#include "plates/engraver/zoology/Horn.h"
#include "plates/engraver/zoology/Quadruped.h"

using namespace tambrelle::engraver;

// The chamois: goat of the rocks, slender black horns upright and hooked backwards, pale face with a dark
// band from the eye to the nose; all four feet on a crag.
static const Subject subject{
    "day_285_chamois", [](Plate& p) {
        stone(p,
              {{58, 224},
               {78, 207},
               {118, 208},
               {140, 216},
               {176, 208},
               {222, 206},
               {244, 214},
               {252, 230},
               {276, 240},
               {284, 258},
               {294, 268},
               {226, 274},
               {150, 269},
               {84, 276},
               {26, 268},
               {36, 250},
               {54, 240}},
              {.seed = 5, .facets = 12, .rough = 2.6, .grain = 20, .depth = 30, .ragged = 2.4});

        Quadruped goat;
        goat.ground = 212;
        goat.trunk = {{104, 112, 0, 22}, {124, 115, 0, 26}, {152, 116, 0, 26},
                      {178, 110, 0, 24}, {196, 108, 0, 21}, {206, 114, 0, 14}};
        goat.swellings = {{{112, 92, 0, 9}, {130, 93, 0, 7}}};
        goat.neck = {{106, 106, 0, 20}, {98, 88, 0, 15}, {91, 71, 0, 12}};
        goat.head = {{87, 62}, 138, 43};
        goat.headBuild = &caprineHead();
        goat.ears = {
            {.at = {-0.02, 0.02}, .z = 0.2, .degrees = -28, .length = 20, .width = 3.6, .bend = -24}};
        goat.elbow = {105, 124};
        goat.hip = {196, 110};
        goat.bone = 0.8;
        goat.muscle = 0.8;
        goat.shoulder = 14;
        goat.spread = 9;
        goat.foreNear = {2, 2};
        goat.foreFar = {-13, -13};
        goat.hindFar = {-10, -14};
        goat.foot = Foot::cloven;
        Body body = goat.body();
        body.chain({{212, 104, 0, 5}, {219, 110, 0, 4}, {221, 117, 0, 1.5}}, {.blend = 4});
        constexpr Palette coatBrown{0xC09A70, 0x84582F, 0x42291A};
        Body::Style style = darkCoat({coatBrown, palettes::cream, palettes::black});
        style.marking = [&goat](Point q, double) {
            // In the head's axes: pale all over but for the band along the cheek.
            const Point d = q - goat.head.poll, axis = direction(goat.head.degrees);
            const double u = dot(d, axis) / goat.head.length,
                         v = dot(d, direction(goat.head.degrees - 90)) / goat.head.length;
            const double face = maths::smooth(0.02, 0.12, u + 0.25 * v) * maths::smooth(0.42, 0.3, v) *
                                maths::smooth(-0.1, 0.1, u);
            const double stripe =
                maths::smooth(0.10, 0.06, std::fabs(v + 0.045 - 0.02 * u)) * maths::smooth(0.92, 0.8, u);
            return face * (1 - stripe);
        };
        horn(p, {{80, 52}, {78, 36}, {81, 22}, {90, 18}, {95, 26}}, {2.8, 2.5, 2.1, 1.7, 0.5},
             {.palette = palettes::black, .rings = 6});
        body.engrave(p, style);
        body.fur(p, {.spacing = 2.5, .length = 7, .width = 0.6, .from = 0.35, .spread = 11});
        horn(p, {{85, 51}, {85, 35}, {90, 20}, {100, 16}, {105, 26}}, {3.1, 2.7, 2.3, 1.8, 0.5},
             {.palette = palettes::black, .rings = 7});
        // The dark band from the ear's root through the eye to the muzzle.
        const Path band = closedSpline(goat.head.path({{0.06, -0.05},
                                                       {0.28, -0.12},
                                                       {0.55, -0.07},
                                                       {0.84, 0.0},
                                                       {0.82, 0.06},
                                                       {0.55, 0.04},
                                                       {0.28, 0.01},
                                                       {0.06, 0.04}}),
                                       8);
        p.flat(band, coatBrown.dark, 0.78);
        goat.finish(p);
    }};
