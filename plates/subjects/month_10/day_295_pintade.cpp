#include "plates/engraver/Ground.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Bird.h"

using namespace tambrelle::engraver;

// The guinea fowl: hunched body with drooping tail, dark plumage pearled all over with white, small bare
// bluish head with a horny helmet and red wattles.
static const Subject subject{
    "day_295_pintade", [](Plate& p) {
        constexpr Palette dark{0x9C98A0, 0x5A5660, 0x2E2A32}, skin{0xE4ECF2, 0xB0C2D4, 0x6A8098};
        birdLeg(p, {162, 196}, {160, 230}, {.palette = palettes::dun, .radius = 2.5, .toe = 19});
        birdLeg(p, {136, 198}, {132, 233}, {.palette = palettes::dun, .radius = 2.6, .toe = 20});
        tailFan(
            p, {204, 156},
            {.from = 38, .to = 76, .feathers = 6, .length = 44, .width = 8, .palette = dark, .tone = 0.45});
        Body bird;
        bird.chain(
            {{104, 142, 0, 31}, {130, 150, 0, 43}, {162, 146, 0, 46}, {192, 150, 0, 35}, {210, 162, 0, 20}},
            {.blend = 18, .coat = 18});
        bird.chain({{98, 130, 0, 25}, {88, 108, 0, 13}, {85, 92, 0, 9.4}}, {.blend = 12, .coat = 98});
        bird.chain({{84, 88, 0, 8.8}, {83, 80, 0, 8.8}}, {.blend = 5, .palette = 1, .coat = 98});
        bird.chain({{82, 72, 0, 10.5}, {75, 74, 0, 8.4}}, {.blend = 5, .palette = 1, .coat = 20});
        Body::Style style = darkPlumed({dark, skin});
        bird.engrave(p, style);
        bird.fur(p, {.spacing = 2.2, .length = 6, .width = 0.7, .from = 0.1, .where = [](Point q) {
                         return q.y > 90 && q.y < 122 && q.x < 104;
                     }});
        wing(p, {128, 128},
             {.degrees = 20,
              .length = 96,
              .depth = 50,
              .coverts = dark,
              .secondaries = dark,
              .primaries = dark,
              .tone = 0.3});
        // Pearls in rows, smaller towards the edge.
        int row = 0;
        for (double y = 104; y < 202; y += 6.2, ++row)
            for (double x = 80; x < 236; x += 7.6) {
                const Point at{x + (row % 2) * 3.8 + p.random.around(0.7),
                               y + 0.10 * (x - 150) + p.random.around(0.7)};
                const auto tone = bird.toneAt(at);
                const bool inside = bird.toneAt(at + Point{-4, 0}) && bird.toneAt(at + Point{4, 0}) &&
                                    bird.toneAt(at + Point{0, -4}) && bird.toneAt(at + Point{0, 4});
                if (!tone || !inside || at.y < 118)
                    continue;
                const double r = 1.75 - 0.5 * *tone;
                p.ink(ellipse(at, r + 0.55, r + 0.5, 14), sepia, 0.9);
                p.highlight(ellipse(at, r, r * 0.92, 14));
            }
        ReliefForm horn;
        horn.palette = palettes::terracotta;
        horn.bevel = 5;
        horn.spacing = 1.7;
        relief(p, closedSpline({{76, 64}, {78, 52}, {84, 44}, {90, 50}, {91, 62}, {85, 66}}, 6), horn);
        horn.palette = palettes::scarlet;
        relief(p, closedSpline({{74, 80}, {80, 81}, {82, 90}, {76, 96}, {71, 90}}, 6), horn);
        bill(p, {{72, 70}, {65, 72}, {57, 79}, {60, 82}, {66, 81}, {73, 81}},
             {{59, 79.5}, {66, 77}, {74, 77}}, Point{66, 74}, {.palette = palettes::terracotta});
        birdEye(p, {80, 71.5}, 2.8, Colour{0x6A4626});
        p.stroke(spline({{86, 66}, {88, 74}, {86, 82}, {88, 90}}), {.width = 0.9, .swell = 0.3, .fade = 0.5});
        ground(p, 92, 226, 240);
        grassTufts(p, 98, 222, 245, 6);
    }};
