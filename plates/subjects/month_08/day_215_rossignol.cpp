#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/zoology/Bird.h"

using namespace tambrelle::engraver;

// The nightingale: small and plain brown above, pale below, rufous tail, large dark eye with a pale ring; it
// sings with open bill on a twig.
static const Subject subject{
    "day_215_rossignol", [](Plate& p) {
        constexpr Palette back{0xD2A878, 0x9A6A40, 0x573620}, breast{0xF8F0DC, 0xDDCBA8, 0x9A8460},
            rufous{0xEBAA72, 0xC06A34, 0x74381A};
        const LeafForm green{.width = 15, .margin = serrate(9, 0.12), .palette = palettes::leaf};
        leaf(p, {{92, 224}, {72, 214}, {46, 218}, {26, 208}}, green);
        twig(p, {{92, 220}, {84, 222}, {78, 226}}, {2, 1.5});
        tailFan(p, {164, 156},
                {.from = 22,
                 .to = 38,
                 .feathers = 6,
                 .length = 84,
                 .width = 6.5,
                 .palette = rufous,
                 .tone = 0.26});
        Body bird;
        bird.chain({{108, 118, 0, 29}, {124, 138, 0, 35}, {146, 152, 0, 27}, {168, 162, 0, 14}},
                   {.blend = 18, .coat = 36});
        bird.chain({{104, 102, 0, 24}, {98, 86, 0, 19}, {95, 74, 0, 18}}, {.blend = 14, .coat = 92});
        bird.chain({{92, 70, 0, 18}, {82, 66, 0, 11}}, {.blend = 8, .coat = 30});
        Body::Style style = plumed({back, breast});
        style.marking = [](Point q, double) {
            // Everything before and below the line from the gape to the vent is pale.
            const double line = 72 + 0.9 * (q.x - 84) + 8 * maths::sin((q.x - 84) / 26);
            return maths::smooth(line - 4, line + 10, q.y) * maths::smooth(170, 150, q.x);
        };
        bird.engrave(p, style);
        bird.plumage(p, {.spacing = 7,
                         .size = 6,
                         .width = 0.5,
                         .where = [](Point q) { return q.y > 84; },
                         .sizeAt = [](Point q) { return 0.6 + 0.5 * maths::clamp01((q.y - 80) / 60); }});
        bird.fur(p, {.spacing = 2.6, .length = 5, .width = 0.5, .from = 0.3, .where = [](Point q) {
                         return q.y < 90;
                     }});
        wing(p, {112, 112},
             {.degrees = 36,
              .length = 104,
              .depth = 38,
              .coverts = back,
              .secondaries = back,
              .primaries = rufous,
              .tone = 0.10});
        // Open bill, its inside pink.
        const Path mouth =
            closedSpline({{76, 60}, {62, 55}, {58, 58}, {66, 66}, {60, 75}, {64, 76}, {77, 72}}, 5);
        p.knockOut(mouth, {.halo = 0.2, .shade = 0});
        p.flat(mouth, Colour{0xE9A08A});
        bill(p, {{80, 57}, {68, 51}, {55, 49}, {66, 57}, {78, 63}}, {{57, 50}, {66, 56.5}, {78, 62.5}},
             Point{70, 54.5}, {.palette = palettes::dun});
        bill(p, {{80, 68}, {70, 71}, {58, 78}, {68, 76}, {81, 73}}, {{60, 77.5}, {70, 72}, {80, 69}},
             std::nullopt, {.palette = palettes::dun});

        p.flat(ellipse({90, 64}, 5.6, 5.2), Colour{0xF3E4C4}, 0.9);
        birdEye(p, {90, 64}, 4.2, Colour{0x2E1C12});
        // Twig and the feet that grip it.
        twig(p, {{22, 234}, {88, 218}, {150, 208}, {232, 200}, {262, 190}}, {5, 4.4, 3.4, 1.8});
        for (const Point foot : {Point{118, 204}, Point{140, 200}}) {
            tube(p, {foot + Point{6, -28}, foot + Point{4, -12}, foot}, {4, 2.2, 2},
                 {.palette = palettes::horn, .spacing = 1.5});
            for (int k = 0; k < 3; ++k)
                tube(p,
                     {foot + Point{-1.0 + 2 * k, -2}, foot + Point{-7.0 + 4.5 * k, 1},
                      foot + Point{-7.0 + 4.5 * k, 9}},
                     {1.9, 1.7, 0.7}, {.palette = palettes::horn, .spacing = 1.5});
        }
        leaf(p, {{206, 202}, {224, 218}, {236, 238}, {238, 256}}, green);
        leaf(p, {{226, 199}, {236, 182}, {252, 170}, {270, 166}}, green);
        leaf(p, {{62, 226}, {70, 240}, {84, 252}, {102, 258}}, green);
    }};
