#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Cooperage.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

namespace {

void screw(Plate& p, Point foot, double height, double radius) {
    LatheForm form;
    form.palette = palettes::wood;
    form.tilt = 0.2;
    form.lines = Lines::along;
    const LatheSurface s = lathe(p, foot, height, radius, form);
    const Plate::Clip clip(p, s.outline);
    constexpr int turns = 13;
    for (int k = -1; k < turns; ++k) { // the thread: a groove from the left edge down to the right
        Path upper, lower;
        for (int j = 0; j <= 12; ++j) {
            const double q = j / 12.0, u = (k + 1 - 0.75 * q) / turns;
            upper.push_back(s.at(u + 0.028, 180 - 180 * q));
            lower.push_back(s.at(u, 180 - 180 * q));
        }
        p.flat(band(upper, lower), palettes::wood, 0.95);
        p.stroke(lower, Pen{.width = 0.6, .swell = 0, .fade = 0});
        p.stroke(upper, Pen{.width = 1.5, .swell = 0.1, .fade = 0});
    }
}

} // namespace

// The wine press: two posts and a beam, a wooden screw turned by a bar, grapes in a slatted cage, must
// running out.
static const Subject subject{
    "day_020_pressoir", [](Plate& p) {
        const Axes room{.origin = {74, 286}, .away = {0.42, -0.30}};
        block(p, room, {-4, 0, 0}, {236, 74, 22}, {});
        block(p, room, {8, 22, 22}, {34, 48, 198}, {});
        block(p, room, {196, 22, 22}, {222, 48, 198}, {});
        const Point middle = room.at({115, 36, 22});
        const LatheSurface cage = cask(p, middle + Point{0, -3}, 52, {63, 63},
                                       {.tilt = 0.26, .staves = 36, .hoops = {0.2, 0.84}, .hoopBreadth = 6});
        mouth(p, cage, {.rim = 4, .staves = 14});
        BallForm grape;
        grape.palette = palettes::grape;
        for (int row = 0; row < 5; ++row)
            for (int k = 0; k < 11; ++k) {
                const double x = (k - 5 + 0.5 * (row % 2)) * 10.4;
                const double y = -66.0 + row * 5.6 - 4;
                if (std::fabs(x) < 57 - std::fabs(row - 2.0) * 6)
                    ball(p, middle + Point{x, y}, 6, grape);
            }
        block(p, {.origin = middle + Point{-58, -64}, .away = {0.42, -0.30}}, {0, -12, 0}, {104, 22, 13}, {});
        screw(p, middle + Point{0, -78}, 112, 14);
        LatheForm drum;
        drum.palette = palettes::wood;
        lathe(p, middle + Point{0, -80}, 22, {19, 21, 19}, drum);
        sawnPole(p, {middle + Point{-74, -97}, middle + Point{0, -91}, middle + Point{84, -84}},
                 {4.4, 4.8, 5});
        block(p, room, {-10, 16, 192}, {240, 54, 226}, {});
        // The spout and its tub.
        const Point lip = room.at({54, 0, 12});
        const LatheSurface tub = cask(p, {lip.x, 314}, 24, {24, 27},
                                      {.tilt = 0.3, .staves = 20, .hoops = {0.3, 0.75}, .hoopBreadth = 3.5});
        mouth(p, tub, {.rim = 2.5, .liquid = palettes::grape, .level = 0.25});
        face(p, {lip + Point{-9, -5}, lip + Point{9, -5}, lip + Point{7, 8}, lip + Point{-7, 8}},
             {.tone = 0.45, .palette = palettes::wood});
        const Path must{lip + Point{-4, 6}, lip + Point{4, 6}, lip + Point{2.5, 20}, lip + Point{-2.5, 20}};
        p.flat(must, palettes::grape, 0.7);
        p.contour(must, 0.7);
        ground(p, 62, 346, 304, 7);
    }};
