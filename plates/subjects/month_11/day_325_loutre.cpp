#include "plates/engraver/Body.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/zoology/Eye.h"
#include "plates/engraver/zoology/Fish.h"
#include "plates/engraver/zoology/Foot.h"

using namespace tambrelle::engraver;

// The otter: long low body with wet fur, flat broad head, small ears, thick tapering tail, webbed feet; on
// the bank with the fish it caught.
static const Subject subject{
    "day_325_loutre", [](Plate& p) {
        constexpr Palette fur{0xC4A078, 0x7F5A38, 0x412A1A}, throat{0xF4EAD8, 0xD8C6A6, 0x96805E};
        waterLines(p, 26, 306, 218, 7);
        Body body;
        const double ground = 207;
        body.chain(
            {{112, 158, 0, 22}, {138, 152, 0, 26}, {172, 152, 0, 27}, {206, 160, 0, 28}, {226, 170, 0, 24}},
            {.blend = 16, .coat = 8});
        body.chain({{226, 176, 0, 20},
                    {252, 198, -4, 14},
                    {272, 212, -4, 9.5},
                    {292, 211, -4, 5.5},
                    {306, 200, -4, 1.6}},
                   {.blend = 12});
        body.chain({{110, 150, 0, 20}, {96, 132, 0, 17}, {88, 120, 0, 16}}, {.blend = 14});
        // Head.
        body.chain({{88, 106, -12, 4.6}, {89, 101, -12, 3}}, {.blend = 2, .depth = 0.6});
        body.chain({{84, 116, 0, 17}, {70, 118, 2, 15}, {58, 122, 2, 11.5}, {52, 124, 2, 9.5}},
                   {.blend = 6, .coat = 8});
        body.chain({{58, 127, 10, 8.4}}, {.blend = 4, .coat = 20});
        body.chain({{60, 134, 2, 6.4}, {70, 134, 2, 8}}, {.blend = 4, .palette = 1});
        body.chain({{46, 120, 2, 3.8}, {49, 118, 4, 3.4}}, {.blend = 1.5, .palette = 2});
        body.chain({{89, 107, 14, 5}, {91, 101, 14, 3.4}}, {.blend = 2, .depth = 0.6});
        // Legs.
        for (const double side : {-1.0, 1.0}) {
            const double z = side * 14, dx = side < 0 ? -21 : 0;
            body.chain(
                {{120 + dx * 0.3, 168, z, 16}, {116 + dx * 0.7, 184, z, 10.5}, {114 + dx, 198, z, 7.6}},
                {.blend = 9});
            body.chain({{115 + dx, ground - 6, z, 6}, {99 + dx, ground - 4.6, z, 4.8}}, {.blend = 4});
            body.chain({{214 + dx * 0.3, 172, z, 23}, {211 + dx * 0.7, 186, z, 15}, {222 + dx, 196, z, 8.5}},
                       {.blend = 10});
            body.chain({{225 + dx, ground - 6, z, 6.2}, {203 + dx, ground - 4.8, z, 5}}, {.blend = 4});
        }
        Body::Style style;
        style.palettes = {fur, throat, palettes::black};
        style.contour = 0.95;
        style.highlight = 0.02;
        style.cuts.from = 0.34;
        style.marking = [](Point q, double) {
            const double line = 124 + (q.x - 52) * 0.42;
            return maths::smooth(line - 1, line + 7, q.y) * maths::smooth(116, 92, q.x) *
                   maths::smooth(180, 164, q.y);
        };
        body.engrave(p, style);
        body.fur(p, {.spacing = 2.5, .length = 9, .width = 0.75, .from = 0.12, .spread = 8});
        for (const Point& foot :
             {Point{92, ground}, Point{113, ground}, Point{197, ground}, Point{218, ground}})
            toes(p, foot + Point{1, 0}, {.length = 19, .height = 7.5, .toes = 4, .claws = 2});
        // The catch across the jaws.
        const Fish fish({{22, 138}, {52, 130}, {84, 142}}, {2, 7, 9, 9, 7, 4, 2.5},
                        {2, 7, 9.5, 9, 7, 4, 2.5});
        const double end = fish.length();
        fin(p, fish,
            {{{end - 3, -2},
              {end + 8, -9},
              {end + 14, -11},
              {end + 11, 0},
              {end + 14, 11},
              {end + 8, 9},
              {end - 3, 2}},
             {end - 2, -2},
             {end - 2, 2},
             {end + 15, -10},
             {end + 15, 10},
             7,
             palettes::silver});
        fin(p, fish,
            {{{26, -8}, {30, -15}, {36, -13}, {38, -7}},
             {27, -8},
             {37, -7},
             {30, -16},
             {39, -11},
             6,
             palettes::silver});
        const ReliefSurface skin =
            fish.engrave(p, {.back = palettes::slate, .flank = palettes::silver, .belly = palettes::chalk});
        fish.scales(p, skin, 16, end, 3.6, 0.7);
        fish.gillCover(p, 13);
        fishEye(p, fish.at(6, -2), 1.7, Colour{0xE8D9A0});
        // Upper jaw before the fish.
        Body jaw;
        jaw.chain({{66, 120, 14, 8.2}, {58, 122, 14, 8.6}, {52, 123.5, 14, 8.2}}, {.blend = 5, .coat = 8});
        Body::Style lip = style;
        lip.marking = {};
        lip.contour = 0;
        lip.edge = 30;
        lip.shade = 0.12;
        jaw.engrave(p, lip);
        jaw.fur(p, {.spacing = 2.5, .length = 6, .width = 0.6, .from = 0.12, .spread = 10});
        const Path nose = closedSpline({{43.4, 121}, {45, 117.4}, {49, 116.8}, {50.4, 119.6}, {47, 123}}, 6);
        p.knockOut(nose, {.halo = 0.2, .shade = 0});
        p.flat(nose, palettes::black, 0.7);
        p.contour(nose, 0.9);
        p.flat(ellipse({46.4, 118.8}, 1.2, 0.7, 12), white, 0.75);
        p.stroke(spline({{45, 124}, {49, 130.4}, {58, 132.4}, {68, 130}}),
                 Pen{.width = 1.1, .swell = 0.2, .fade = 0.5});
        p.stroke(spline({{50, 114}, {58, 109.5}, {66, 104}}), Pen{.width = 0.6, .swell = 0.4, .fade = 0.4});
        eye(p, {69, 111}, {.radius = 2.9, .iris = Colour{0x3A2416}, .degrees = 172, .lid = 1.0});
        p.stroke(spline({{45, 119}, {47, 118}, {48, 120}}, 5), Pen{.width = 1.0});
        for (int k = 0; k < 6; ++k) {
            p.dot({53.0 + 2 * (k % 3), 122 + 1.2 * k}, 0.5);
            p.stroke(spline({{55, 123.0 + k}, {44, 126.0 + 3 * k}, {36.0 + 2 * k, 134.0 + 5 * k}}, 6),
                     Pen{.width = 0.5, .swell = 0, .fade = 0.9});
        }
        tambrelle::engraver::ground(p, 70, 300, ground - 1, 4);
        grassTufts(p, 150, 300, ground + 6, 10);
    }};
