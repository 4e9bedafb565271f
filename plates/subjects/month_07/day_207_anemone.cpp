// Crown anemone, Anemone coronaria: broad red tepals about a dark blue-black eye, a finely cut green collar
// below.

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Sheet.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/CompoundLeaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_207_anemone", [](Plate& p) {
        const LeafKind cut{.build = LeafKind::Build::frond, .petiole = 0.2, .leaflets = 6, .subdivided = 4};
        for (const auto& [a, bend] :
             {std::pair{-166.0, -12.0}, {-14.0, 12.0}, {-140.0, -10.0}, {-40.0, 10.0}})
            growLeaf(p, {200, 330}, a, 128, 30, cut, bend);
        tube(p, {{176, 338}, {200, 332}, {226, 338}}, {6, 8, 5}, {.palette = palettes::brown, .rough = 0.2});
        stem(p, {{200, 334}, {205, 270}, {200, 150}}, {4, 3.4});
        for (const double a : {-172.0, -8.0, -150.0, -30.0, 150.0, 30.0, 120.0, 60.0, 92.0})
            frond(p, {{201, 202}, polar({201, 202}, a, 26), polar({201, 200}, a - 3, 50)},
                  {.pairs = 6, .length = 15, .subdivided = 3});
        Sheets sheets;
        const Frame frame({200, 126}, 62, -96);
        for (int k = 0; k < 8; ++k)
            sheets.petal(frame, k * 45.0,
                         {.length = 82.0 - 6 * (k % 2),
                          .width = 37,
                          .baseAngle = 60.0 + 6 * (k % 2),
                          .tipAngle = 88,
                          .shape = {0.4, 0.8, 1, 1, 0.8, 0},
                          .cup = 1.8,
                          .radius = 7,
                          .offset = (k % 2) * -3.0,
                          .tone =
                              [](double u, double v) {
                                  return 0.1 * maths::exp(-v * v * 20) -
                                         0.4 * maths::exp(-(u - 0.2) * (u - 0.2) * 160);
                              }},
                         p.random);
        sheets.engrave(p, {.palettes = {palettes::scarlet}, .washLift = 0.06});
        for (int k = 0; k < 60; ++k) {
            const double a = k * 137.5, r = 17 + 10 * (k % 5) / 4.0;
            const Point e = Point{199, 120} + Point{direction(a).x * r, direction(a).y * r * 0.88};
            p.stroke({{199, 120}, e}, {.width = 0.7, .swell = 0, .fade = 0.1});
            p.dot(e, 2, Colour(0x2B2A48));
        }
        ball(p, {199, 119}, 13, {.palette = palettes::berry, .tone = 0.2});
    }};
