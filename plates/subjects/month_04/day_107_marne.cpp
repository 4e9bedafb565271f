#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/minerals/Block.h"
#include "plates/engraver/minerals/Shell.h"

using namespace tambrelle::engraver;

// Marl: a pale crumbling bank of clay and lime in thin layers, falling to crumbs at its foot, with a fossil
// cockle.
static const Subject subject{
    "day_107_marne", [](Plate& p) {
        ground(p, 62, 340, 286, 9);
        const Palette grey{0xE9E6D2, 0xC2BE9F, 0x84805F}, white{0xFBF8E8, 0xE6E0C4, 0xA79F7C},
            blue{0xD8DDD2, 0xA9B3A6, 0x6A766C};
        const Box bank{.front = {236, 300}, .left = {-160, -26}, .right = {86, -40}, .height = 140};
        roughBlock(p, bank,
                   {.beds = {{0.10, blue, 0},
                             {0.22, grey, 1.2},
                             {0.34, white, 0},
                             {0.42, blue, 1.4},
                             {0.56, grey, 0},
                             {0.64, white, 1.2},
                             {0.76, blue, 0},
                             {0.86, white, 1.2},
                             {1, grey, 0.2}},
                    .seed = 7,
                    .rough = 2.2,
                    .grain = 13,
                    .flat = 1.5,
                    .ragged = 4.5,
                    .wavy = 5});
        std::uint64_t seed = 60;
        for (int k = 0; k < 34; ++k) {
            const double t = p.random.uniform(-0.05, 1.02);
            const Point at =
                bank.at(t, 0, 0) + Point{p.random.around(10), p.random.uniform(-6, 14) * (1 - 0.3 * t)};
            const double s = p.random.uniform(3, 11);
            Path corners;
            for (int i = 0; i < 6; ++i)
                corners.push_back(at +
                                  Point{direction(60.0 * i).x * s * 1.2, direction(60.0 * i).y * s * 0.8} *
                                      p.random.uniform(0.8, 1.2));
            stone(p, corners,
                  {.palette = k % 3 == 0 ? white : grey,
                   .seed = ++seed,
                   .facets = 5,
                   .rough = 0.4,
                   .grain = 8,
                   .depth = s,
                   .ragged = 0.6,
                   .contour = 0.7});
        }
        cockle(p, {132, 232}, 27, -100, white);
        cockle(p, {286, 292}, 22, -70, white);
    }};
