#include "plates/engraver/Face.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Block.h"

using namespace tambrelle::engraver;

// Sandstone: a block of level beds in warm ochres, grains of sand all over; the grindstone is cut from it.
static const Subject subject{
    "day_104_gres", [](Plate& p) {
        ground(p, 66, 336, 286, 9);
        const Palette pale{0xFBEBC8, 0xE8C893, 0xA97F4C}, ochre{0xF2CF96, 0xD49A55, 0x8E5A2A},
            rust{0xEDB58A, 0xC27748, 0x7C4222};
        const Box stone{.front = {214, 306}, .left = {-142, -34}, .right = {104, -44}, .height = 136};
        const RoughBlock b = roughBlock(p, stone,
                                        {.beds = {{0.14, rust, 0.6},
                                                  {0.30, pale, 0},
                                                  {0.40, ochre, 0.8},
                                                  {0.58, pale, 0},
                                                  {0.66, rust, 1},
                                                  {0.84, ochre, 0.3},
                                                  {1, pale, 0.9}},
                                         .seed = 14,
                                         .rough = 0.8,
                                         .grain = 7,
                                         .flat = 3.5,
                                         .ragged = 1.8,
                                         .wavy = 3.5});
        for (const ReliefSurface* face : {&b.left, &b.right, &b.top})
            strew(p, *face, 420, {{0.6, sepia, 0.8}, {0.4, Colour{0xFFF4DA}, 0.9}}, 0.35, 0.75);
        // The grindstone, leaning.
        const LatheSurface wheel =
            lathe(p, {286, 262}, 20, 46,
                  {.direction = 152, .tilt = 0.8, .palette = ochre, .lines = Lines::along, .tone = 0.05});
        const Path side = wheel.ring(1);
        face(p, side, {.tone = 0.16, .palette = ochre, .lines = 60, .gradient = 0.16, .shade = 0, .halo = 0});
        {
            const Plate::Clip clip(p, side);
            for (int k = 0; k < 260; ++k) {
                const double x = p.random.uniform(210, 330);
                p.dot({x, p.random.uniform(200, 310)}, p.random.uniform(0.3, 0.6), sepia, 0.8);
            }
        }
        p.contour(side, 0.8);
        const Point eye = centroid(side);
        const Path hole{eye + Point{-9, -7}, eye + Point{7, -10}, eye + Point{9, 7}, eye + Point{-7, 10}};
        face(p, hole, {.tone = 0.85, .palette = palettes::clay, .crossed = true, .halo = 0});
    }};
