#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Iron.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The pitchfork: three long curved tines of iron on a shaft, a wisp of hay caught upon them.
static const Subject subject{
    "day_260_fourche", [](Plate& p) {
        const Placement lie{{80, 306}, -45};
        pole(p, lie.at({{0, 0}, {90, 2}, {196, 0}}), {8, 7, 7});
        TubeForm iron;
        iron.palette = palettes::steel;
        iron.spacing = 1.8;
        iron.tone = 0.08;
        iron.contour = 1;
        p.castShadows(false);
        tube(p, lie.at({{194, 0}, {208, -20}, {232, -50}, {266, -62}, {300, -58}, {330, -46}}),
             {6, 6.6, 6.2, 5.4, 4, 0.7}, iron);
        tube(p, lie.at({{194, 0}, {208, 20}, {232, 50}, {266, 62}, {300, 58}, {330, 46}}),
             {6, 6.6, 6.2, 5.4, 4, 0.7}, iron);
        p.castShadows(true);
        tube(p, lie.at({{188, 0}, {230, 1}, {280, 3}, {338, 1}}), {6.4, 6.2, 5, 0.7}, iron);
        tube(p, lie.at({{156, 0}, {176, 0}, {196, 0}, {212, 0}}), {9, 9.5, 10.5, 6}, iron);
        p.dot(lie.at(168, -1), 1.6);
        // Hay, over and under the tines.
        for (int k = 0; k < 13; ++k) {
            const double v = p.random.uniform(-40, 40), u = p.random.uniform(222, 246);
            TubeForm stalk;
            stalk.palette = k % 3 == 0 ? palettes::oldleaf : palettes::straw;
            stalk.lines = Lines::none;
            stalk.tone = p.random.uniform(0, 0.25);
            stalk.contour = 0.5;
            stalk.halo = 0.2;
            const double half = p.random.uniform(20, 40), lean = p.random.around(14);
            tube(p, lie.at({{u - lean, v - half}, {u + p.random.around(5), v}, {u + lean - 4, v + half}}),
                 {0.9, 1.1, 0.6}, stalk);
        }
    }};
