#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Weave.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

// The garden line: cord wound upon one peg and stretched to another, both driven into the ground.
static const Subject subject{
    "day_170_cordeau", [](Plate& p) {
        ground(p, 60, 340, 286, 7);
        const auto peg = [&p](double x, double top) {
            pole(p, {{x, 296}, {x - 1, 220}, {x - 3, top}}, {7, 13, 13});
            const Path end = ellipse({x - 3, top}, 13.5, 6, 40);
            p.knockOut(end, {.halo = 0, .shade = 0});
            p.flat(end, palettes::wood, 0.12);
            p.contour(end, 0.9);
            p.contour(ellipse({x - 3, top}, 7, 3, 30), 0.5);
        };
        peg(308, 128);
        peg(140, 92);
        // The line runs from the winding to the far peg and about it.
        rope(p, {{170, 170}, {240, 182}, {297, 178}}, 4.2);
        for (int k = 2; k >= 0; --k)
            rope(p, {{294, 176.0 + k * 8}, {304, 182.0 + k * 8}, {321, 176.0 + k * 8}}, 4.4);
        // Turns upon turns, thickest in the middle.
        for (int k = 13; k >= 0; --k) {
            const double y = 128 + k * 8.6, q = (k - 6.5) / 7.5;
            const double reach = 22 + 30 * std::sqrt(std::max(0.0, 1 - q * q));
            rope(p,
                 {{139 - reach, y - 5},
                  {139 - reach * 0.5, y + 5},
                  {139, y + 9},
                  {139 + reach * 0.5, y + 6},
                  {139 + reach, y - 3}},
                 5.2);
        }
        rope(p, {{92, 166}, {112, 188}, {142, 206}, {170, 214}, {190, 206}}, 5.2);
        rope(p, {{96, 214}, {122, 214}, {154, 196}, {182, 170}}, 5.2);
        grassTufts(p, 70, 330, 292, 9);
    }};
