#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The sleigh: two runners that curl up before, stakes, a bed of slats with a rail and a back rest.
static const Subject subject{
    "day_149_traineau", [](Plate& p) {
        ground(p, 72, 326, 292, 7);
        constexpr double rise = 1.32;
        const Point away{50, -56};
        // Heights are counted from the runners' foot.
        const auto at = [](double x, double y) { return Point{x, 296 - y * rise}; };
        const auto runner = [&](Point by) {
            pole(p,
                 moved({at(322, 6), at(250, 3), at(170, 4), at(118, 11), at(86, 36), at(76, 72), at(88, 98),
                        at(110, 103), at(120, 86)},
                       by),
                 {7, 8, 8, 8, 7.6, 6.4, 5.4, 5, 4.4});
        };
        const auto stakes = [&](Point by) {
            for (const double x : {146.0, 216.0, 284.0})
                pole(p, moved({at(x - 4, 6), at(x, 64)}, by), {6, 5.4});
        };
        const auto bed = [&](double x, double y) { return at(114, 66) + Point{200 * x, -4 * x} + away * y; };
        runner(away);
        stakes(away);
        // The far rail, the bed, the back rest.
        for (const double x : {142.0, 216.0, 288.0})
            pole(p, moved({at(x, 58), at(x + 2, 104)}, away), 5);
        pole(p, moved({at(124, 100), at(216, 106), at(304, 112)}, away), {5, 5.6, 5.6});
        for (int k = 7; k >= 0; --k) {
            const double x0 = k / 8.0, x1 = (k + 0.86) / 8.0;
            plank(p, {bed(x0, 0), bed(x0, 1), bed(x1, 1), bed(x1, 0)}, 0.2 + 0.05 * (k % 3));
        }
        pole(p, {at(296, 112), at(298, 112) + away}, 6);
        pole(p, {at(292, 88), at(294, 88) + away}, 4.6);
        pole(p, {at(106, 62), at(214, 63), at(324, 65)}, {7.5, 8, 7.5});
        runner({0, 0});
        stakes({0, 2});
        pole(p, {at(292, 58), at(297, 118)}, 6);
        // The crossbar between the horns.
        sawnPole(p, {at(108, 98) + away, at(102, 96)}, {5.6, 6});
    }};
