#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Iron.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The hay rake: a broad head of ten wooden teeth on a long handle, stayed by two braces.
static const Subject subject{
    "day_220_rateau", [](Plate& p) {
        const Placement lie{{76, 302}, -43};
        TubeForm tooth;
        tooth.palette = palettes::wood;
        tooth.spacing = 1.6;
        tooth.tone = 0.06;
        tooth.contour = 0.85;
        pole(p, lie.at({{0, 0}, {110, 2}, {232, 0}}), {7.5, 6.5, 6});
        pole(p, lie.at({{118, 0}, {172, 18}, {228, 62}}), 3.6);
        pole(p, lie.at({{118, 0}, {172, -18}, {228, -62}}), 3.6);
        p.stroke(lie.at({{108, -7}, {110, 0}, {108, 7}}), Pen{.width = 2.2, .swell = 0, .fade = 0});
        p.stroke(lie.at({{113, -7}, {115, 0}, {113, 7}}), Pen{.width = 2.2, .swell = 0, .fade = 0});
        for (int k = 0; k < 10; ++k) {
            const double v = -99 + 22 * k;
            tube(p, lie.at({{228, v}, {256, v + 1}, {282, v + 8}}), {5, 4.6, 0.8}, tooth);
        }
        pole(p, lie.at({{230, -112}, {234, 0}, {230, 112}}), {9.5, 10.5, 9.5});
    }};
