#include "plates/engraver/Ground.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Bird.h"

using namespace tambrelle::engraver;

// The cock pheasant: green head with red face, white collar, coppery breast scaled with black, tail as long
// as the bird and barred.
static const Subject subject{
    "day_055_faisan", [](Plate& p) {
        constexpr Palette copper{0xEDBB84, 0xC17A3A, 0x6B3618}, green{0x8FA98C, 0x3F6450, 0x1C3328},
            buff{0xF2DDB0, 0xCDA566, 0x7F5C2C};
        birdLeg(p, {132, 168}, {136, 212}, {.palette = palettes::dun, .radius = 2.2, .toe = 18});
        // The tail: short outer feathers, long middle ones.
        for (int k = 6; k >= 0; --k) {
            const double angle = 14 + (k % 2 == 0 ? -1.0 : 1.0) * 1.7 * k, size = 150 - k * 13.0;
            const Point root{168, 136}, tip = polar(root, angle, size);
            feather(p, root, tip, {.palette = buff, .width = 6.6, .tone = 0.22, .bend = -7});
            const Path middle = spline({root, (root + tip) * 0.5 + rightOf(unit(tip - root)) * -7, tip});
            for (int b = 0; b < 17 - k; ++b) {
                const double u = 0.16 + 0.82 * (b + 0.5) / (17 - k);
                const Point c = along(middle, u), way = direction(angleAlong(middle, u)), side = rightOf(way);
                const double half = 6 * std::min(1.0, (1 - u) * 5);
                p.stroke(spline({c - side * half - way * 1.5, c + way * 1.2, c + side * half - way * 1.5}, 6),
                         {.width = 1.7, .swell = 0.15, .fade = 0.15, .wobble = 0, .alpha = 0.9});
            }
        }
        birdLeg(p, {114, 172}, {112, 215}, {.palette = palettes::dun, .radius = 2.3, .toe = 19});
        Body cock;
        cock.chain({{100, 130, 0, 30}, {124, 142, 0, 35}, {150, 138, 0, 28}, {172, 134, 0, 15}},
                   {.blend = 18, .coat = 8});
        cock.chain({{92, 118, 0, 23}, {82, 96, 0, 14}}, {.blend = 12, .coat = 98});
        cock.chain({{81, 91, 0, 12.5}, {78, 86, 0, 11.4}}, {.blend = 2, .palette = 2, .coat = 98});
        cock.chain({{78, 84, 0, 11}, {76, 70, 0, 10}, {76, 60, 0, 10.5}, {69, 60, 0, 8.8}},
                   {.blend = 4, .palette = 1, .coat = 98});
        Body::Style style = plumed({copper, green, palettes::whiteflower});
        style.highlight = 0.05;
        cock.engrave(p, style);
        cock.plumage(p, {.spacing = 8,
                         .size = 8,
                         .width = 1.0,
                         .where = [](Point q) { return q.y > 98 && q.y < 178; },
                         .sizeAt = [](Point q) { return 0.7 + 0.4 * maths::clamp01((q.y - 96) / 50); }});
        wing(p, {110, 116},
             {.degrees = 12,
              .length = 84,
              .depth = 38,
              .coverts = copper,
              .secondaries = buff,
              .primaries = buff,
              .tone = 0.06});
        ReliefForm face;
        face.palette = palettes::scarlet;
        face.bevel = 6;
        face.spacing = 1.7;
        face.shade = 0;
        relief(p, closedSpline({{65, 54}, {74, 53}, {79, 59}, {77, 68}, {71, 73}, {65, 66}}, 8), face);
        for (int k = 0; k < 3; ++k)
            p.stroke(spline({{79, 50.0 - k}, {85, 47.0 - 2 * k}, {90, 45.0 - 2.4 * k}}, 5),
                     {.width = 1.2, .swell = 0, .fade = 0.8});
        bill(p, {{65, 55}, {58, 57}, {51, 64}, {54, 66}, {60, 65}, {66, 65}},
             {{53, 64}, {60, 61.5}, {67, 61}}, Point{60, 59}, {.palette = palettes::straw});
        birdEye(p, {72.5, 59.5}, 2.7, Colour{0xD79A3A});
        ground(p, 76, 250, 220, 4);
        grassTufts(p, 84, 240, 224, 8);
    }};
