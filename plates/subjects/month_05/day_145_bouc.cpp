#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Caprine.h"
#include "plates/engraver/zoology/Horn.h"
#include "plates/engraver/zoology/Locks.h"

using namespace tambrelle::engraver;

// The he-goat standing: long dark coat to the knees, great ringed horns swept back, long beard, short raised
// tail, strong smell left to the imagination.
static const Subject subject{
    "day_145_bouc", [](Plate& p) {
        constexpr Palette hair{0xA58C72, 0x66503C, 0x32241A};
        Quadruped buck = goat();
        Body body = buck.body();
        body.chain({{210, 114, 0, 6}, {220, 104, 0, 5}, {225, 95, 0, 2}}, {.blend = 4});
        horn(p, {{70, 64}, {78, 44}, {98, 32}, {122, 36}, {138, 50}}, {4.6, 4.2, 3.4, 2.4, 0.7},
             {.palette = palettes::horn, .rings = 11});
        body.engrave(p, darkCoat({hair}));
        body.fur(p, {.spacing = 2.3, .length = 12, .width = 0.75, .from = 0.1, .spread = 11});
        hangingCoat(p, {96, 132}, {206, 128}, 20, hair, 0.42);
        hangingCoat(p, {94, 148}, {206, 144}, 22, hair, 0.5);
        hangingCoat(p, {98, 162}, {202, 156}, 24, hair, 0.58);
        for (int k = 0; k < 12; ++k) {
            const Point root{78 + k * 3.4, 108 + k * 4.0 + p.random.around(2)};
            lock(p, {root, root + Point{-3, 9}, root + Point{-1, 20}}, {2.4, 2.8, 0.3},
                 {.palette = hair, .strands = 6, .tone = 0.55, .contour = 0.4, .halo = 0.1});
        }
        horn(p, {{77, 63}, {86, 41}, {108, 27}, {134, 30}, {152, 46}}, {5.2, 4.8, 3.9, 2.7, 0.7},
             {.palette = palettes::horn, .rings = 13});
        buck.finish(p);
        lock(p, {{56, 112}, {59, 126}, {54, 150}}, {4.4, 5.4, 3.6, 0.4},
             {.palette = hair, .strands = 30, .tone = 0.68});
        lock(p, {{74, 62}, {68, 68}, {62, 78}}, {3.2, 3, 0.4}, {.palette = hair, .strands = 12, .tone = 0.6});
        ground(p, 64, 236, 233);
    }};
