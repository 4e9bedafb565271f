#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/minerals/Block.h"

using namespace tambrelle::engraver;

// Lead: dull blue-grey pigs, small shot, and the plumb bob on its line.
static const Subject subject{
    "day_117_plomb", [](Plate& p) {
        ground(p, 58, 350, 288, 9);
        const CutBlockForm pig{
            .palette = palettes::lead, .leftTone = 0.5, .rightTone = 0.8, .topTone = 0.26, .spacing = 1.9};
        cutBlock(p, {.front = {140, 286}, .left = {-78, -20}, .right = {54, -24}, .height = 32, .taper = 0.2},
                 pig);
        cutBlock(p, {.front = {244, 292}, .left = {-86, -22}, .right = {58, -26}, .height = 32, .taper = 0.2},
                 pig);
        cutBlock(p, {.front = {184, 256}, .left = {-86, -22}, .right = {58, -26}, .height = 32, .taper = 0.2},
                 pig);
        std::vector<Point> shot;
        for (int row = 0; row < 4; ++row)
            for (int k = 0; k < 9 - row; ++k)
                shot.push_back(
                    {62 + 13.0 * k + 6.5 * row + p.random.around(1.5), 306 - 6.5 * row + p.random.around(1)});
        std::sort(shot.begin(), shot.end(), [](Point a, Point b) { return a.y < b.y; });
        for (const Point at : shot)
            ball(p, at, 6.2, {.palette = palettes::lead, .tone = 0.08, .shade = 0.15});
        // The bob hangs before them.
        const Palette line = palettes::straw;
        lathe(p, {286, 66}, 68, {5, 8, 8, 8, 5},
              {.direction = 0, .tilt = 0.2, .palette = palettes::wood, .lines = Lines::along});
        for (int k = 0; k < 8; ++k) // the line on its stick
            tube(p, {{307.0 + 3.4 * k, 57}, {308.5 + 3.4 * k, 66}, {307.5 + 3.4 * k, 76}}, 1.7,
                 {.palette = line, .spacing = 2.6, .shade = 0.1});
        tube(p, {{320, 72}, {319, 100}, {320, 136}}, 1.6, {.palette = line, .spacing = 2.6});
        lathe(p, {320, 132}, 20, {6, 6, 8, 5}, {.direction = 90, .tilt = -0.2, .palette = palettes::brass});
        lathe(p, {320, 148}, 122, {12, 30, 38, 36, 29, 20, 11, 1},
              {.direction = 90,
               .tilt = -0.2,
               .palette = palettes::lead,
               .spacing = 1.9,
               .coverage = 0.55,
               .tone = 0.1});
    }};
