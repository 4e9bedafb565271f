#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Bird.h"

using namespace tambrelle::engraver;

// The drake afloat: bottle-green head, white collar, flat yellow bill, chestnut breast, grey flanks, blue
// wing-bar, curled black feathers over the tail.
static const Subject subject{
    "day_245_canard", [](Plate& p) {
        constexpr Palette green{0x8DB49A, 0x34694E, 0x17342A}, chest{0xC99A7C, 0x7E4A32, 0x43251A},
            flank{0xF2F0EA, 0xCFCAC0, 0x8A847A}, black{0x8A8682, 0x4A4542, 0x262120},
            blue{0xB4C4EC, 0x4E68B4, 0x243470};
        constexpr double water = 196;
        {
            Path above{{10, 10}, {390, 10}, {390, water}};
            for (int k = 0; k < 60; ++k)
                above.push_back({388 - k * 6.4, water + 1.6 * maths::sin(k * 0.9)});
            const Plate::Clip clip(p, above);
            tailFan(p, {214, 158},
                    {.from = -26,
                     .to = 4,
                     .feathers = 5,
                     .length = 46,
                     .width = 7,
                     .palette = palettes::whiteflower,
                     .tone = 0.12});
            Body drake;
            drake.chain({{120, 168, 0, 36},
                         {146, 174, 0, 42},
                         {182, 170, 0, 36},
                         {210, 158, 0, 22},
                         {232, 148, 0, 9}},
                        {.blend = 18, .coat = 4});
            drake.chain({{112, 156, 0, 33}, {100, 134, 0, 19}}, {.blend = 14, .palette = 1, .coat = 95});
            drake.chain({{97, 122, 0, 15}, {96, 118, 0, 14.6}}, {.blend = 3, .palette = 2, .coat = 95});
            drake.chain({{96, 114, 0, 14.4}, {96, 100, 0, 14}, {95, 84, 0, 16.5}},
                        {.blend = 5, .palette = 3, .coat = 95});
            drake.chain({{92, 80, 0, 16}, {82, 86, 0, 11}}, {.blend = 7, .palette = 3, .coat = 20});
            Body::Style style = plumed({flank, chest, palettes::whiteflower, green});
            style.highlight = 0.05;
            style.marking = [](Point q, double) {
                return maths::smooth(128, 112, q.x - 0.25 * (q.y - 170)) * maths::smooth(124, 132, q.y);
            };
            drake.engrave(p, style);
            drake.plumage(
                p, {.spacing = 9, .size = 8, .width = 0.5, .where = [](Point q) { return q.y >= 132; }});
            drake.fur(p, {.spacing = 2.6, .length = 5, .width = 0.55, .from = 0.2, .where = [](Point q) {
                              return q.y < 112 && q.x > 82;
                          }});
            wing(p, {134, 140},
                 {.degrees = 2,
                  .length = 116,
                  .depth = 44,
                  .coverts = palettes::dun,
                  .secondaries = flank,
                  .primaries = palettes::dun,
                  .tone = 0.05,
                  .marked = [blue](int row, int i) {
                      return row == -1 && i > 2 ? std::optional(blue) : std::nullopt;
                  }});
            for (int k = 0; k < 2; ++k)
                p.stroke(spline({{216.0 + 6 * k, 146},
                                 {232.0 + 5 * k, 136},
                                 {238.0 + 5 * k, 124},
                                 {230.0 + 5 * k, 120},
                                 {228.0 + 5 * k, 127}}),
                         {.width = 3.2, .swell = 0.2, .fade = 0.5, .colour = black.dark});
            bill(p, {{79, 78}, {70, 83}, {56, 91}, {46, 94}, {45, 98}, {52, 101}, {66, 99}, {79, 96}},
                 {{46, 97}, {58, 95.5}, {68, 94}, {79, 90}}, Point{70, 87}, {.palette = palettes::yellow});
            birdEye(p, {88, 77}, 3.0, Colour{0x5A3A1E});
        }
        for (int k = 0; k < 9; ++k) {
            const double y = water + 1 + k * 3.4, half = 78 - k * 3.0;
            p.stroke(spline({{164 - half + p.random.around(10), y + 1},
                             {150, y - 0.6 + (k == 0 ? 1.6 : 0.0)},
                             {164 + half + p.random.around(12), y + 0.8}}),
                     {.width = 0.8 - 0.05 * k, .swell = 0.4, .fade = 0.4, .wobble = 0.6});
        }
        // The mirror image darkens the water under the bird.
        p.underwash(ellipse({162, water + 10}, 76, 14), flank.dark, 0.25);
        p.underwash(ellipse({162, water + 4}, 66, 8), flank.dark, 0.25);
        waterLines(p, 34, 286, water - 8, 9);
    }};
