#include "plates/engraver/Body.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/zoology/Eye.h"
#include "plates/engraver/zoology/Fish.h"

using namespace tambrelle::engraver;

namespace {

/// A webbed foot from its ankle: five clawed toes with skin between them, fanned about `degrees`.
void webbedFoot(Plate& p, Point ankle, double degrees, double length, const Palette& skin) {
    constexpr double spread[] = {-34, -17, 0, 17, 33};
    constexpr double reach[] = {0.82, 0.97, 1, 0.95, 0.8};
    Path outline{polar(ankle, degrees - 90, length * 0.17)};
    for (int k = 0; k < 5; ++k) {
        outline.push_back(polar(ankle, degrees + spread[k], reach[k] * length));
        if (k < 4)
            outline.push_back(polar(ankle, degrees + (spread[k] + spread[k + 1]) / 2, 0.84 * length));
    }
    outline.push_back(polar(ankle, degrees + 90, length * 0.17));
    const Path web = closedSpline(outline, 6);
    p.knockOut(web);
    p.flat(web, skin, 0.3);
    for (int k = 0; k < 5; ++k) {
        const Point tip = polar(ankle, degrees + spread[k], reach[k] * length);
        tube(p, {polar(ankle, degrees + spread[k] * 0.7, length * 0.12), lerp(ankle, tip, 0.55), tip},
             {length * 0.075, length * 0.06, length * 0.035},
             {.palette = skin, .tone = 0.1, .contour = 0.6, .shade = 0.1, .halo = 0});
        p.stroke({tip, polar(tip, degrees + spread[k], 3.6)}, {.width = 1.5, .swell = 0, .fade = 0.8});
    }
    p.contour(web, 0.9);
}

} // namespace

// The otter: a long sinuous swimmer with wet fur, flat broad head as thick as its neck, small ears, stout
// whiskers, thick tapering tail, webbed feet; under water with the fish it caught.
static const Subject subject{
    "day_325_loutre", [](Plate& p) {
        constexpr Palette fur{0xC4A078, 0x7F5A38, 0x412A1A}, throat{0xF4EAD8, 0xD8C6A6, 0x96805E};
        const Palette web = mix(fur, palettes::dun, 0.5);
        waterLines(p, 34, 350, 70, 4);
        ground(p, 60, 336, 286, 4);
        for (const double x : {72.0, 96.0, 190.0, 326.0}) {
            for (const double height : {52.0, 74.0}) {
                const double sway = height > 60 ? 5 : -5;
                leaf(p,
                     {{x, 289},
                      {x + sway, 289 - height * 0.35},
                      {x - sway * 0.4, 289 - height * 0.7},
                      {x + sway * 1.6, 289 - height}},
                     {.width = 2.8,
                      .shape = {0.7, 1, 1, 0.8, 0.5, 0},
                      .palette = palettes::bluegreen,
                      .veins = 0,
                      .parallel = true,
                      .contour = 0.6});
            }
        }
        webbedFoot(p, {107, 194}, 156, 27, web);
        webbedFoot(p, {139, 208}, 124, 29, web);
        webbedFoot(p, {226, 240}, 104, 37, web);
        webbedFoot(p, {282, 240}, 30, 44, web);
        Body body;
        body.chain({{104, 126, 0, 19},
                    {126, 144, 0, 23},
                    {156, 170, 0, 27},
                    {192, 192, 0, 28},
                    {226, 202, 0, 26},
                    {252, 202, 0, 20}},
                   {.blend = 14});
        body.chain({{250, 202, 0, 18},
                    {276, 194, 0, 14},
                    {304, 178, 0, 9.5},
                    {328, 156, 0, 5.6},
                    {344, 132, 0, 1.8}},
                   {.blend = 12});
        // Head.
        body.chain({{100, 108, -12, 4.4}, {102, 103, -12, 2.8}}, {.blend = 2, .depth = 0.6});
        body.chain(
            {{98, 119, 0, 17}, {82, 117, 0, 15.5}, {68, 119, 2, 13.5}, {57, 122, 2, 11}, {52, 124, 2, 9.5}},
            {.blend = 6, .coat = 14});
        body.chain({{58, 127, 10, 8.4}}, {.blend = 4, .coat = 20});
        body.chain({{60, 134, 2, 6.4}, {72, 133, 2, 8}}, {.blend = 4, .palette = 1});
        body.chain({{46, 120, 2, 3.8}, {49, 118, 4, 3.4}}, {.blend = 1.5, .palette = 2});
        body.chain({{101, 110, 14, 4.6}, {103, 105, 14, 3.2}}, {.blend = 2, .depth = 0.6});
        // Legs, swept back in the stroke.
        body.chain({{134, 160, -14, 15}, {118, 178, -14, 9.5}, {107, 193, -14, 6.2}}, {.blend = 9});
        body.chain({{142, 166, 14, 17}, {138, 188, 15, 11.5}, {139, 206, 15, 6.8}}, {.blend = 9});
        body.chain({{226, 210, -14, 18}, {223, 226, -14, 12}, {226, 239, -14, 7}}, {.blend = 10});
        body.chain({{238, 208, 14, 21}, {256, 222, 15, 14}, {281, 239, 15, 7.5}}, {.blend = 10});
        Body::Style style;
        style.palettes = {fur, throat, palettes::black};
        style.contour = 0.95;
        style.highlight = 0;
        style.ambient = 0.06;
        style.cuts.from = 0.34;
        style.marking = [](Point q, double) {
            const double line = 118 + (q.x - 52) * 0.4;
            return maths::smooth(line - 1, line + 7, q.y) * maths::smooth(140, 104, q.x) *
                   maths::smooth(172, 150, q.y);
        };
        body.engrave(p, style);
        body.fur(p, {.spacing = 2.5, .length = 9, .width = 0.75, .from = 0.12, .spread = 8});
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
        eye(p, {71, 113}, {.radius = 3, .iris = Colour{0x3A2416}, .degrees = 172, .lid = 1.0});
        p.stroke(spline({{45, 119}, {47, 118}, {48, 120}}, 5), Pen{.width = 1.0});
        for (int k = 0; k < 6; ++k) {
            p.dot({53.0 + 2 * (k % 3), 122 + 1.2 * k}, 0.5);
            p.stroke(spline({{55, 123.0 + k}, {42, 126.0 + 3 * k}, {30.0 + 2 * k, 136.0 + 6 * k}}, 6),
                     Pen{.width = 0.7, .swell = 0, .fade = 0.9});
        }
        // Its breath rises in bubbles.
        for (const Point& bubble : {Point{70, 96}, Point{78, 86}, Point{72, 78}})
            p.contour(ellipse(bubble, 3.4, 3.4, 24), 0.8);
    }};
