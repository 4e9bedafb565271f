#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/zoology/Bird.h"

using namespace tambrelle::engraver;

// The quail: round as a ball, hardly a tail, brown with pale streaks along every feather of the back, dark
// bands on the throat, short bill; in the corn.
static const Subject subject{
    "day_255_caille", [](Plate& p) {
        constexpr Palette brown{0xE2C49A, 0xA87C4C, 0x5E3F24}, buff{0xF8E8C6, 0xE0BE88, 0x9C7646};
        const auto ear = [&p](Point foot, Point top) {
            const Path straw = tube(p, {foot, lerp(foot, top, 0.6) + Point{3, 0}, top}, {1.4, 1.1, 0.9},
                                    {.palette = palettes::straw, .spacing = 1.5});
            const double angle = angleAlong(straw, 0.97);
            for (int k = 0; k < 9; ++k)
                for (const int side : {-1, 1}) {
                    const Point at = polar(top, angle, k * 4.0 - 6);
                    const Point tip = polar(at, angle + side * 24, 10);
                    leaflet(p, at, tip,
                            {.width = 2.6, .palette = palettes::straw, .tone = 0.25, .midrib = false});
                    p.stroke({tip, polar(tip, angle + side * 12, 13)},
                             {.width = 0.5, .swell = 0, .fade = 0.8});
                }
        };
        ear({236, 232}, {222, 96});
        ear({218, 234}, {252, 120});
        leaf(p, {{226, 230}, {216, 190}, {196, 150}, {180, 120}},
             {.width = 5, .palette = palettes::straw, .parallel = true});
        leaf(p, {{62, 232}, {54, 196}, {40, 170}, {20, 158}},
             {.width = 4.5, .palette = palettes::straw, .parallel = true});
        birdLeg(p, {146, 192}, {148, 226}, {.palette = palettes::horn, .radius = 2.2, .toe = 17, .bend = 2});
        birdLeg(p, {122, 194}, {121, 229}, {.palette = palettes::horn, .radius = 2.3, .toe = 18, .bend = 2});
        Body quail;
        quail.chain(
            {{106, 150, 0, 38}, {132, 156, 0, 44}, {162, 154, 0, 36}, {184, 160, 0, 22}, {198, 168, 0, 9}},
            {.blend = 18, .coat = 14});
        quail.chain({{98, 132, 0, 29}, {88, 110, 0, 20}}, {.blend = 14, .coat = 92});
        quail.chain({{85, 102, 0, 18}, {76, 102, 0, 12}}, {.blend = 8, .coat = 20});
        Body::Style style = plumed({brown, buff});
        style.highlight = 0.05;
        style.marking = [](Point q, double) {
            const double breast =
                maths::smooth(140, 160, q.y + (110 - q.x) * 0.5) * maths::smooth(176, 150, q.x);
            const double brow =
                maths::smooth(2.6, 1.4, std::fabs(q.y - 94 - 0.004 * (q.x - 80) * (q.x - 80))) *
                maths::smooth(106, 98, q.x);
            const double throat = maths::smooth(104, 110, q.y) * maths::smooth(88, 80, q.x);
            return std::max({breast, brow, throat});
        };
        quail.engrave(p, style);
        quail.plumage(p,
                      {.spacing = 10, .size = 9, .width = 0.6, .where = [](Point q) { return q.y > 116; }});
        wing(p, {116, 138},
             {.degrees = 14,
              .length = 98,
              .depth = 46,
              .coverts = brown,
              .secondaries = brown,
              .primaries = brown,
              .tone = 0.14});
        // Pale shaft streaks with dark borders, the bird's mark.
        for (int k = 0; k < 30; ++k) {
            const Point at{104 + (k % 10) * 9.2 + p.random.around(2),
                           122 + (k / 10) * 11.0 + (k % 10) * 1.6 + p.random.around(2)};
            const Point tip = at + Point{13, 4};
            p.stroke({at + Point{0, -1.6}, tip + Point{0, -1.4}}, Pen{.width = 1.5, .alpha = 0.8});
            p.stroke({at + Point{0, 1.4}, tip + Point{0, 1.2}}, Pen{.width = 1.2, .alpha = 0.7});
            p.stroke({at, tip}, {.width = 1.9, .swell = 0.2, .fade = 0.6, .colour = Colour{0xF6E6C0}});
        }
        p.stroke(spline({{70, 98}, {80, 99}, {92, 103}, {98, 112}}),
                 {.width = 2.0, .swell = 0.3, .fade = 0.5, .alpha = 0.85});
        p.stroke(spline({{72, 114}, {80, 120}, {92, 120}, {100, 112}}),
                 {.width = 2.4, .swell = 0.3, .fade = 0.3, .alpha = 0.85});
        p.stroke(spline({{78, 128}, {88, 130}, {98, 126}}),
                 {.width = 1.8, .swell = 0.3, .fade = 0.3, .alpha = 0.8});
        bill(p, {{70, 97}, {63, 98}, {55, 105}, {58, 107}, {64, 106}, {70, 107}},
             {{57, 105}, {63, 103}, {71, 102.5}}, Point{64, 100.5}, {.palette = palettes::dun});
        birdEye(p, {80, 99.5}, 3.1, Colour{0x7A4A22});
        leaf(p, {{196, 236}, {204, 210}, {222, 190}, {246, 184}},
             {.width = 4, .palette = palettes::straw, .parallel = true});
        ground(p, 50, 250, 234);
        grassTufts(p, 56, 246, 240, 12);
    }};
