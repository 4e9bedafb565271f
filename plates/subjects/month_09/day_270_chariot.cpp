#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Wheel.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The cart: two great spoked wheels, a body of slatted sides, two shafts that rest on the ground.
static const Subject subject{
    "day_270_chariot", [](Plate& p) {
        ground(p, 60, 340, 300, 7);
        const Axes room{.origin = {134, 222}, .away = {0.5, -0.42}};
        wheel(p, room.at({86, 92, -2}),
              {.radius = 72, .squash = 0.86, .spokes = 12, .rim = 9, .depth = {6, -2}});
        // Far shaft, floor, sides.
        pole(p, {room.at({60, 70, 0}), room.at({-20, 66, -8}), room.at({-72, 62, -40})}, {6.5, 6.5, 5});
        const auto side = [&](double y, double tone) {
            for (int k = 0; k < 6; ++k) {
                const double x = 4 + k * 32;
                bar(p, room.at({x, y, 4}), room.at({x - 4 + k * 1.2, y, 96}), 8, tone + 0.1);
            }
            for (const double z : {32.0, 60.0, 90.0})
                bar(p, room.at({-8, y, z}), room.at({186, y, z + 3}), z > 80 ? 11 : 8, tone);
        };
        side(80, 0.42);
        block(p, room, {0, 0, 0}, {172, 80, 11}, {});
        plank(p,
              {room.at({170, 0, 11}), room.at({170, 80, 11}), room.at({173, 80, 84}), room.at({173, 0, 84})},
              0.55);
        pole(p, {room.at({90, 0, -2}), room.at({10, 0, -2}), room.at({-36, 0, -16}), room.at({-76, 0, -70})},
             {7, 7.5, 7, 5.4});
        pole(p, {room.at({-40, 2, -20}), room.at({-38, 66, -18})}, 5);
        side(0, 0.26);
        wheel(p, room.at({86, -12, -4}),
              {.radius = 77, .squash = 0.88, .spokes = 12, .rim = 9.5, .hub = 0.18, .depth = {8, -2}});
    }};
