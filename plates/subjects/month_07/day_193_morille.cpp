// Morel, Morchella esculenta: a tall honey-brown cap pitted like a comb on a pale hollow stalk.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_193_morille", [](Plate& p) {
        ground(p, 110, 310, 322, 5);
        grassTufts(p, 110, 310, 322, 9);
        const auto morel = [&](Point foot, double size) {
            lathe(p, foot, size * 0.9, {size * 0.33, size * 0.27, size * 0.25, size * 0.27, size * 0.3},
                  {.tilt = 0.1,
                   .palette = palettes::cream,
                   .lines = Lines::along,
                   .tone = 0.06,
                   .ribs = 7,
                   .ribDepth = 0.08});
            const LatheSurface cap =
                lathe(p, foot + Point{0, -size * 0.78}, size * 1.36,
                      {size * 0.3, size * 0.54, size * 0.6, size * 0.58, size * 0.48, size * 0.32, 2},
                      {.tilt = 0.1, .palette = palettes::fawn, .lines = Lines::none, .tone = 0.04});
            const Plate::Clip clip(p, cap.outline);
            const int rows = 9;
            for (int i = 0; i < rows; ++i)
                for (int k = 0; k < 9; ++k) {
                    const double u = 0.05 + 0.94 * i / rows + p.random.around(0.012),
                                 a = -4 + 24.0 * (k + 0.5 * (i % 2)) + p.random.around(3);
                    const double da = 9.6, du = 0.43 / rows;
                    Path pit;
                    for (const auto& [x, y] : {std::pair{0.0, 1.15},
                                               {0.9, 0.6},
                                               {1.0, -0.5},
                                               {0.1, -1.15},
                                               {-0.9, -0.6},
                                               {-1.0, 0.5}})
                        pit.push_back(cap.at(maths::clamp01(u + y * du), a + x * da));
                    const Path outline = closedSpline(pit, 6);
                    p.flat(outline, palettes::brown, 0.36 + 0.3 * cap.toneAt(maths::clamp01(u), a));
                    p.contour(outline, 0.75);
                    const Plate::Clip inside(p, outline);
                    for (int n = 0; n < 6; ++n) {
                        const Point from =
                            lerp(outline[0], outline[outline.size() / 3], n / 6.0) + Point{-3, 0};
                        p.stroke({from, from + Point{size * 0.03, size * 0.08}},
                                 {.width = 0.8, .swell = 0, .fade = 0.6});
                    }
                }
        };
        morel({268, 316}, 64);
        morel({176, 326}, 124);
    }};
