#include "plates/engraver/Face.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/carpentry/Cooperage.h"
#include "plates/engraver/carpentry/Weave.h"

using namespace tambrelle::engraver;

// The vintage basket: tall, wider above, carried on the back by two straps; here heaped with grapes.
static const Subject subject{
    "day_350_hotte", [](Plate& p) {
        ground(p, 120, 290, 308, 5);
        LatheForm body;
        body.palette = palettes::tan;
        body.lines = Lines::none;
        body.tilt = 0.3;
        const LatheSurface basket = lathe(p, {200, 300}, 176, {52, 66, 80, 92}, body);
        weave(p, wovenLathe(basket, 0.02, 0.98), {.rows = 21, .stakes = 19, .bulge = 0.3});
        mouth(p, basket, {.rim = 4, .palette = palettes::tan, .depth = 0.4, .staves = 18});
        plait(p, basket.ring(1, 176, 364), 5.5);
        BallForm grape;
        grape.palette = palettes::grape;
        for (int row = 0; row < 6; ++row)
            for (int k = 0; k < 17; ++k) {
                const double v = (row - 2.2) / 3.4, x = (k - 8 + 0.5 * (row % 2)) * 11;
                const double reach = 80 * std::sqrt(std::max(0.0, 1 - v * v));
                if (std::fabs(x) < reach)
                    ball(p,
                         {200 + x + p.random.around(1),
                          134 + v * 22 - 20 * (1 - x * x / 7000) + p.random.around(1)},
                         6.6, grape);
            }
        LeafForm vine;
        vine.width = 15;
        vine.margin = lobed(2.5, 0.35);
        leaf(p, {{226, 106}, {248, 90}, {270, 98}}, vine);
        leaf(p, {{166, 104}, {146, 88}, {122, 96}}, vine);
        plait(p, basket.ring(1, 0, 180), 7.5);
        plait(p, basket.ring(0.05, 0, 180), 5.5);
        // Straps of leather, each from the rim to the foot.
        const Palette leather{0xC9966A, 0x84502E, 0x46281A};
        for (const double s : {-1.0, 1.0}) {
            const auto at = [s](double x, double y) { return Point{200 + s * x, y}; };
            const Path outer = spline({at(50, 152), at(64, 190), at(62, 240), at(38, 294)});
            const Path inner = spline({at(32, 156), at(45, 192), at(44, 236), at(22, 292)});
            surface(p, outer, inner,
                    {.palette = leather,
                     .tone =
                         [s](double u, double v) {
                             return 0.34 + 0.22 * s * (0.5 - v) + 0.2 * (2 * u - 1) * (2 * u - 1);
                         },
                     .shade = 0.5});
            for (const double q : {0.12, 0.88}) {
                Path seam;
                for (int k = 0; k <= 30; ++k)
                    seam.push_back(lerp(along(outer, k / 30.0), along(inner, k / 30.0), q));
                p.stroke(seam, Pen{.width = 0.5, .swell = 0, .fade = 0});
            }
            const Point buckle = lerp(along(outer, 0.3), along(inner, 0.3), 0.5);
            const Path frame = turned({buckle + Point{-12, -8}, buckle + Point{12, -8}, buckle + Point{12, 8},
                                       buckle + Point{-12, 8}},
                                      s * 12, buckle);
            p.contour(frame, 2.4);
            p.stroke({buckle + Point{0, -8}, buckle + Point{s * 2, 9}},
                     Pen{.width = 1.6, .swell = 0, .fade = 0});
        }
    }};
