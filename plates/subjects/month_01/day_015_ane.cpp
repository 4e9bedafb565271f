#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Equid.h"
#include "plates/engraver/zoology/Locks.h"

using namespace tambrelle::engraver;

// The donkey: big head, very long ears, upright mane, pale muzzle, eye ring and belly, dark cross over the
// shoulder, tail with a tuft only.
static const Subject subject{
    "day_015_ane", [](Plate& p) {
        Quadruped ass = equid();
        ass.trunk = {{106, 134, 0, 25}, {128, 136, 0, 28}, {158, 138, 0, 29},
                     {184, 132, 0, 25}, {202, 128, 0, 23}, {211, 134, 0, 17}};
        ass.swellings = {{{114, 112, 0, 8}, {136, 114, 0, 6}}, {{194, 114, 0, 11}, {208, 120, 0, 10}}};
        ass.neck = {{106, 126, 0, 24}, {94, 108, 0, 19}, {84, 92, 0, 15.5}, {77, 80, 0, 12.5}};
        ass.head = {{75, 77}, 122, 57};
        ass.elbow = {105, 148};
        ass.hip = {202, 128};
        ass.shoulder = 15;
        ass.bone = 0.9;
        ass.muscle = 0.85;
        ass.foreFar = {-6, -9};
        ass.hindFar = {-8, -11};
        ass.ears = {
            {.at = {-0.12, -0.20}, .z = -0.12, .degrees = -112, .length = 43, .width = 5.2, .bend = 18},
            {.at = {-0.16, -0.05}, .z = 0.12, .degrees = -76, .length = 46, .width = 5.8, .bend = -14}};
        Body body = ass.body();
        Body::Style style = coat({palettes::dun, palettes::chalk});
        style.marking = [](Point q, double) {
            const double muzzle = maths::smooth(112, 119, q.y) * maths::smooth(64, 58, q.x);
            const double belly = maths::smooth(154, 164, q.y) * maths::smooth(114, 124, q.x) *
                                 maths::smooth(192, 184, q.x) * maths::smooth(178, 172, q.y);
            const double ring = maths::smooth(7.5, 5, length(q - Point{65.5, 87.5}));
            return std::max({muzzle, belly, ring});
        };
        body.engrave(p, style);
        body.fur(p, {.spacing = 2.6, .length = 8, .width = 0.55, .from = 0.3, .spread = 12});
        ass.finish(p);
        // The cross.
        const Palette dark = mix(palettes::dun, palettes::black, 0.6);
        lock(p, {{122, 105}, {119, 118}, {115, 134}, {112, 150}}, {3.2, 3, 2.4, 0.5},
             {.palette = dark, .strands = 16, .tone = 0.62, .contour = 0.2, .halo = 0, .shade = 0});
        mane(p, {{82, 64}, {93, 76}, {104, 92}, {115, 106}},
             {.locks = 22,
              .fallFirst = {4, -9},
              .fallLast = {5, -8},
              .belly = 4,
              .width = 2,
              .lock = {.palette = dark, .strands = 6, .tone = 0.7, .halo = 0.1, .shade = 0}});
        lock(p, {{219, 122}, {229, 134}, {231, 160}, {229, 180}}, {2.6, 2.6, 2.1, 2.0},
             {.palette = palettes::dun, .strands = 16, .tone = 0.5});
        lock(p, {{229, 176}, {231, 190}, {230, 208}}, {2.2, 5.4, 0.4}, {.palette = dark, .strands = 30});
        ground(p, 66, 232, 233);
    }};
