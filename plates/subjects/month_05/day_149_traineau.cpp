#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The sleigh: two runners that curl up before, stakes, a bed of slats between raised sides.
static const Subject subject{"day_149_traineau", [](Plate& p) {
    ground(p, 62, 340, 284, 7);
    const Point away{52, -44};
    const auto runner = [&p](Point by) {
        Path spine{{336, 286}, {260, 290}, {170, 290}, {116, 282}, {80, 254}, {70, 216}, {84, 188}, {108, 184}, {116, 202}};
        pole(p, moved(spine, by), {6.5, 7.5, 7.5, 7.5, 7, 6, 5, 4.5, 4}, palettes::wood);
    };
    const auto stakes = [&p](Point by) {
        for (const double x : {148.0, 222.0, 296.0})
            pole(p, moved({{x - 4, 288}, {x, 228}}, by), {5.5, 5});
    };
    runner(away);
    stakes(away);
    // The back rest of the far side, the bed, the near side.
    pole(p, moved({{296, 236}, {306, 176}}, away), 5);
    pole(p, moved({{148, 236}, {144, 192}}, away), 4.5);
    pole(p, moved({{130, 190}, {222, 188}, {312, 180}}, away), {4.5, 5, 5});
    const auto bed = [&](double x, double y) { return Point{118 + 208 * x + away.x * y, 226 + away.y * y - 4 * x}; };
    for (int k = 8; k >= 0; --k) {
        const double x0 = k / 9.0, x1 = (k + 0.84) / 9.0;
        plank(p, {bed(x0, 0), bed(x0, 1), bed(x1, 1), bed(x1, 0)}, 0.2 + 0.05 * (k % 3));
    }
    pole(p, {{112, 232}, {220, 230}, {334, 226}}, {7, 7.5, 7});
    pole(p, {{306, 176}, moved({{312, 176}}, away)[0]}, 5.5);
    runner({0, 0});
    stakes({0, 2});
    pole(p, {{296, 230}, {306, 172}}, 5.5);
    pole(p, {{148, 230}, {142, 184}}, 5);
    pole(p, {{126, 186}, {220, 184}, {314, 176}}, {5, 5.5, 5.5});
    for (const double x : {222.0})
        pole(p, {{x, 230}, {x, 186}}, 4.5);
    // The crossbar between the horns.
    sawnPole(p, {Point{108, 190} + away, {100, 192}}, {5, 5.5});
}};
