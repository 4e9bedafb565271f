#include "plates/engraver/Face.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Iron.h"

using namespace tambrelle::engraver;

// The pruning knife: a short blade hooked like a beak, edged on its inner side, in a swelling turned handle.
static const Subject subject{
    "day_140_serpette", [](Plate& p) {
        const Placement lie{{196, 214}, 138};
        blade(p, {{182, 206}, {214, 158}, {254, 112}, {300, 92}, {330, 114}, {332, 170}},
              {{214, 230}, {246, 188}, {274, 158}, {298, 150}, {314, 156}, {332, 170}},
              {.palette = palettes::steel, .tone = 0.24, .rib = 0.16, .contour = 1});
        turnedHandle(p, lie.at(-6, 0), lie.degrees, 150, {17, 18, 21, 24, 24, 21, 20, 24, 27, 22, 6});
        ferrule(p, lie.at(-10, 0), lie.at(12, 0), {17.5, 19, 18.5}, palettes::brass);
        for (const double u : {50.0, 92.0}) {
            const Path rivet = ellipse(lie.at(u, -2), 4, 4, 20);
            p.knockOut(rivet, {.halo = 0.2});
            p.flat(rivet, palettes::brass, 0.3);
            p.contour(rivet, 0.8);
        }
    }};
