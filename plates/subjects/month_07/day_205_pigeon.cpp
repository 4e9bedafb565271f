#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Bird.h"

using namespace tambrelle::engraver;

// The pigeon: blue-grey, small head on a short neck shot with green and purple, white cere, two black bars on
// the wing, red feet.
static const Subject subject{
    "day_205_pigeon", [](Plate& p) {
        constexpr Palette slate{0xDDE3EA, 0x9AA7B8, 0x505C6E}, sheen{0xA8BCA8, 0x5E7F74, 0x39424E},
            plum{0xCDB6C8, 0x8E6E8C, 0x4A3A52};
        birdLeg(p, {150, 186}, {152, 220}, {.palette = palettes::red, .radius = 2.3, .toe = 17, .bend = 2});
        tailFan(
            p, {186, 160},
            {.from = 8, .to = 26, .feathers = 6, .length = 70, .width = 7.5, .palette = slate, .tone = 0.3});
        birdLeg(p, {128, 188}, {128, 223}, {.palette = palettes::red, .radius = 2.4, .toe = 18, .bend = 2});
        Body bird;
        bird.chain(
            {{100, 132, 0, 31}, {122, 150, 0, 38}, {152, 158, 0, 31}, {180, 162, 0, 18}, {196, 166, 0, 10}},
            {.blend = 18, .coat = 22});
        bird.chain({{94, 116, 0, 24}, {86, 96, 0, 16.5}}, {.blend = 14, .palette = 2, .coat = 98});
        bird.chain({{84, 88, 0, 14.5}, {83, 78, 0, 13}}, {.blend = 8, .palette = 1, .coat = 98});
        bird.chain({{83, 70, 0, 13}, {75, 69, 0, 9.6}}, {.blend = 7, .coat = 20});
        Body::Style style = plumed({slate, sheen, plum});
        style.highlight = 0.06;
        bird.engrave(p, style);
        bird.plumage(p, {.spacing = 7, .size = 6.5, .width = 0.55, .where = [](Point q) {
                             return q.y < 128 && q.y > 78;
                         }});
        bird.plumage(p,
                     {.spacing = 11, .size = 9, .width = 0.5, .where = [](Point q) { return q.y >= 126; }});
        constexpr Palette pale{0xEEF1F4, 0xBAC4D0, 0x6E7A8A}, bar{0x77767E, 0x45464E, 0x26252A};
        wing(p, {112, 122},
             {.degrees = 20,
              .length = 128,
              .depth = 50,
              .coverts = pale,
              .secondaries = pale,
              .primaries = slate,
              .marked = [bar](int row, int) { return row == 0 ? std::optional(bar) : std::nullopt; }});
        // The second bar crosses the secondaries.
        const Path across = spline({{172, 160}, {162, 167}, {150, 172}, {138, 173}});
        for (int k = 0; k < 9; ++k) {
            const Point c = along(across, (k + 0.5) / 9);
            p.stroke(spline({c + Point{-4, -3}, c, c + Point{5, 2}}, 5),
                     {.width = 5.6, .swell = 0.1, .fade = 0.1, .colour = bar.dark, .alpha = 0.85});
        }
        bill(p, {{70, 64}, {63, 66}, {55, 73}, {58, 75}, {64, 73}, {70, 74}},
             {{57, 73}, {64, 70.5}, {71, 70.5}}, Point{63, 68.4}, {.palette = palettes::darkgrey});
        const Path cere = closedSpline({{70, 63}, {65, 64.5}, {64, 68}, {70, 68}}, 6);
        p.knockOut(cere, {.halo = 0.1, .shade = 0});
        p.contour(cere, 0.6);
        birdEye(p, {80, 67}, 3.0, Colour{0xD8602A});
        ground(p, 88, 216, 227);
    }};
