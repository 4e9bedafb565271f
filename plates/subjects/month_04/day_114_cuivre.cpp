#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Vessel.h"
#include "plates/engraver/minerals/Block.h"

using namespace tambrelle::engraver;

namespace {

// Polished sheet copper, hammered: a white gleam at the left, a paler one at the right, and dark bands that
// mirror the room between them; rows of shallow hammer marks.
LatheForm hammered(double tilt) {
    return {.tilt = tilt,
            .palette = {0xFFDCC0, 0xD9793F, 0x6E2C12},
            .spacing = 2.2,
            .hatchFrom = 0.36,
            .tone = 0.02,
            .highlight = 0.16,
            .texture = [](double u, double angle, double tone) {
                const auto about = [angle](double degrees, double breadth) {
                    const double away = (maths::degrees(angle) - degrees) / breadth;
                    return maths::exp(-away * away);
                };
                const double mark = maths::sin(u * 60) * maths::sin(angle * 24 + std::floor(u * 19.1) * 1.57);
                return tone - 0.55 * about(128, 9) - 0.30 * about(38, 6) + 0.34 * about(104, 13) +
                       0.22 * about(152, 10) + 0.06 * mark;
            }};
}

} // namespace

// Copper: a hammered red kettle that gleams, with its swan-neck spout, lid and brass-knobbed bail, on an
// ingot.
static const Subject subject{
    "day_114_cuivre", [](Plate& p) {
        ground(p, 62, 340, 312, 6);
        const Palette copper{0xFFDCC0, 0xD9793F, 0x6E2C12};
        cutBlock(p,
                 {.front = {262, 322}, .left = {-180, -20}, .right = {54, -22}, .height = 26, .taper = 0.12},
                 {.palette = copper, .leftTone = 0.34, .rightTone = 0.7, .topTone = 0.1, .spacing = 2});
        // The bail stands up behind; its feet are hidden by the shoulder.
        tube(p, {{154, 164}, {134, 104}, {158, 50}, {206, 32}, {254, 50}, {278, 104}, {258, 164}}, 4,
             {.palette = palettes::iron, .spacing = 1.7});
        tube(p, {{176, 36}, {206, 31}, {236, 36}}, 7,
             {.palette = palettes::darkwood, .lines = Lines::along, .cutEnd = true});
        // The spout grows from the belly.
        tube(p, {{160, 240}, {120, 230}, {102, 196}, {92, 160}, {66, 148}}, {22, 17, 12, 9.5, 8.5},
             {.palette = copper, .spacing = 2, .tone = 0.04, .contour = 0.85, .cutEnd = true});
        const LatheSurface kettle =
            lathe(p, {206, 288}, 152, {56, 72, 80, 82, 80, 72, 58, 42, 40}, hammered(0.2));
        LatheForm top = hammered(0.2);
        lathe(p, {206, 142}, 26, {45, 44, 38, 28, 14, 7}, top);
        ball(p, {206, 112}, 9, {.palette = palettes::brass});
        for (const double degrees : {172.0, 8.0}) {
            const Point ear = kettle.at(0.86, degrees);
            ball(p, ear, 7, {.palette = copper});
            p.dot(ear, 1.6);
        }
        p.stroke(kettle.ring(0.06, 4, 176), {.width = 0.9, .swell = 0.1, .fade = 0.1});
    }};
