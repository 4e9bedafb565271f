#include "plates/engraver/Ground.h"
#include "plates/engraver/Lathe.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Bird.h"
#include "plates/engraver/zoology/Locks.h"

using namespace tambrelle::engraver;

// The turkey cock: tail spread in a wheel with a pale border, naked warty neck with a snood over the bill and
// red wattles, tuft on the breast.
static const Subject subject{
    "day_045_dindon", [](Plate& p) {
        constexpr Palette bronze{0xB89C78, 0x6E5438, 0x33261A}, pale{0xEFE3CC, 0xC9B08A, 0x7D6343},
            skin{0xE6C8CC, 0xB98492, 0x7C4A5C};
        for (const double radius : {112.0, 80.0}) {
            const int n = radius > 100 ? 19 : 15;
            for (int step = n / 2; step >= 0; --step)
                for (const int side : {-1, 1}) {
                    const Point root{238, 232};
                    const double angle = -80 + side * step * 170.0 / (n - 1);
                    const Point tip = polar(root, angle, radius), u = direction(angle), v = rightOf(u);
                    const double w = radius * 0.088;
                    feather(p, root, tip, {.palette = bronze, .width = w, .tone = 0.3});
                    const Point at = lerp(root, tip, 0.885);
                    p.flat({at + v * (w * 0.86) - u * 4, at + v * (w * 0.84) + u * 3.5,
                            at - v * (w * 0.84) + u * 3.5, at - v * (w * 0.86) - u * 4},
                           Colour{0xF0E4CC}, 0.9);
                    p.stroke({at + v * w * 0.86 - u * 4, at - v * w * 0.86 - u * 4},
                             {.width = 0.9, .swell = 0, .fade = 0});
                    if (side < 0 && step == 0)
                        break;
                }
        }
        birdLeg(p, {216, 286}, {213, 333}, {.palette = palettes::rose, .radius = 3});
        birdLeg(p, {192, 290}, {187, 336}, {.palette = palettes::rose, .radius = 3.1, .toe = 22});
        Body cock;
        cock.chain({{160, 246, 0, 36}, {190, 258, 0, 44}, {224, 250, 0, 36}, {246, 236, 0, 18}},
                   {.blend = 18, .coat = 8});
        cock.chain({{150, 232, 0, 24}, {140, 206, 0, 13}}, {.blend = 12, .coat = 95});
        cock.chain({{140, 206, 0, 11}, {136, 182, 0, 8}, {133, 166, 0, 8}},
                   {.blend = 8, .palette = 1, .coat = 95});
        cock.chain({{131, 160, 0, 10}, {123, 162, 0, 8.4}}, {.blend = 5, .palette = 1, .coat = 20});
        Body::Style style = darkPlumed({bronze, skin});
        style.contour = 1;
        cock.engrave(p, style);
        cock.plumage(p,
                     {.spacing = 12, .size = 11, .width = 0.75, .where = [](Point q) { return q.y > 208; }});
        wing(p, {168, 226},
             {.length = 112,
              .depth = 50,
              .coverts = bronze,
              .secondaries = pale,
              .primaries = bronze,
              .tone = 0.08,
              .marked = [pale](int row, int) { return row == 0 ? std::optional(pale) : std::nullopt; }});
        bill(p, {{117, 156}, {109, 159}, {102, 166}, {103, 170}, {110, 168}, {118, 168}},
             {{103, 167}, {110, 164.5}, {118, 164}}, Point{112, 161}, {.palette = palettes::horn});
        ReliefForm flesh;
        flesh.palette = palettes::red;
        flesh.bevel = 5;
        flesh.spacing = 1.8;
        relief(p,
               closedSpline({{119, 152},
                             {123, 157},
                             {117, 166},
                             {112, 180},
                             {107, 192},
                             {102, 188},
                             {105, 174},
                             {112, 160}},
                            8),
               flesh);
        flesh.bevel = 8;
        relief(p, closedSpline({{122, 172}, {132, 170}, {139, 184}, {137, 204}, {128, 208}, {122, 192}}, 8),
               flesh);
        for (int k = 0; k < 18; ++k)
            ball(p, {137 + p.random.around(6.5), 178 + p.random.uniform(0, 36)}, p.random.uniform(1.7, 2.8),
                 {.palette = palettes::red, .spacing = 1.2, .contour = 0.5, .shade = 0.2});
        lock(p, {{146, 250}, {139, 266}, {141, 284}}, {2, 3, 0.4}, {.strands = 14, .tone = 0.8});
        birdEye(p, {126, 158}, 2.9, Colour{0xC98A3A});
        ground(p, 130, 292, 340);
    }};
