// Lungwort, Pulmonaria officinalis: ovate leaves spotted white, funnels that open pink and turn blue.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"
#include "plates/engraver/botany/Roots.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_139_pulmonaire", [](Plate& p) {
        const LeafForm blade{.width = 32, .shape = shapes::ovate, .palette = palettes::leaf, .veins = 5};
        const auto spotted = [&](const Path& spine, double width) {
            LeafForm form = blade;
            form.width = width;
            const Path outline = leaf(p, spine, form);
            const Path middle = spline(spine);
            for (int k = 0; k < 26; ++k) {
                const double q = p.random.uniform(0.14, 0.86), r = p.random.uniform(2.2, 4.8);
                const Point at =
                    polar(along(middle, q), angleAlong(middle, q) + 90, p.random.around(width * 0.72));
                if (contains(outline, at + Point{r, 0}) && contains(outline, at - Point{r, 0}) &&
                    contains(outline, at + Point{0, r}) && contains(outline, at - Point{0, r}))
                    p.highlight(ellipse(at, r, r * 0.8));
            }
        };
        rootlets(p, {200, 332}, 16, 90, 130, 22);
        spotted({{196, 328}, {150, 286}, {72, 272}}, 33);
        spotted({{204, 328}, {250, 288}, {328, 274}}, 33);
        spotted({{198, 330}, {156, 316}, {94, 332}}, 24);
        spotted({{202, 330}, {246, 316}, {308, 334}}, 24);
        const FlowerForm funnel{.petals = 5,
                                .length = 13,
                                .width = 8.5,
                                .baseAngle = 46,
                                .tipAngle = 82,
                                .shape = shapes::orbicular,
                                .palette = palettes::rose,
                                .tilt = 38,
                                .tube = 18,
                                .tubeRadius = 4,
                                .eye = 2,
                                .sepals = 5};
        const auto shoot = [&](const Path& spine, double size) {
            const Path curve = stem(p, spine, {3.8, 3});
            spotted({along(curve, 0.5), polar(along(curve, 0.5), -20, 34), polar(along(curve, 0.5), 0, 66)},
                    14);
            spotted(
                {along(curve, 0.42), polar(along(curve, 0.42), -158, 34), polar(along(curve, 0.42), 178, 66)},
                14);
            for (int k = 0; k < 7; ++k) {
                const double way = -168 + 26.0 * k;
                FlowerForm form = funnel;
                form.palette = k % 2 == 0 ? mix(palettes::blue, palettes::violet, 0.3) : palettes::rose;
                const Point tip = polar(curve.back(), way, 20 + 12 * (k % 2));
                stem(p, {curve.back(), tip}, {1.5, 1.3});
                flower(p, tip, way, form, size);
            }
        };
        shoot({{198, 330}, {176, 240}, {136, 150}}, 1.5);
        shoot({{202, 330}, {226, 236}, {266, 138}}, 1.6);
    }};
