#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Wheel.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The cart: two great spoked wheels, a body of slatted sides, two shafts that rest on the ground.
static const Subject subject{"day_270_chariot", [](Plate& p) {
    ground(p, 46, 344, 288, 7);
    const Axes room{.origin = {150, 226}, .away = {0.55, -0.36}};
    wheel(p, room.at({92, 98, -2}), {.radius = 60, .squash = 0.86, .spokes = 12, .rim = 8, .depth = {6, -2}});
    // Far shaft, floor, sides.
    pole(p, {room.at({60, 74, 0}), room.at({-30, 70, -6}), room.at({-112, 64, -46})}, {6, 6, 4.6});
    const auto side = [&](double y, double tone) {
        for (int k = 0; k < 7; ++k) {
            const double x = 6 + k * 27.5;
            bar(p, room.at({x, y, 4}), room.at({x - 3 + k * 0.6, y, 66}), 7, tone + 0.1);
        }
        for (const double z : {26.0, 60.0})
            bar(p, room.at({-10, y, z}), room.at({190, y, z + 3}), z > 30 ? 10 : 7, tone);
    };
    side(84, 0.42);
    block(p, room, {0, 0, 0}, {180, 84, 10}, {});
    // The far end board, seen from within.
    plank(p, {room.at({178, 0, 10}), room.at({178, 84, 10}), room.at({180, 84, 60}), room.at({180, 0, 60})}, 0.55);
    pole(p, {room.at({90, 0, -2}), room.at({20, 0, 0}), room.at({-40, 0, -6}), room.at({-122, 0, -50})}, {6.5, 7, 6.6, 5});
    pole(p, {room.at({-54, 4, -12}), room.at({-50, 72, -12})}, 4.4);
    side(0, 0.26);
    wheel(p, room.at({92, -10, -2}), {.radius = 64, .squash = 0.88, .spokes = 12, .rim = 8.5, .hub = 0.19, .depth = {7, -2}});
}};
