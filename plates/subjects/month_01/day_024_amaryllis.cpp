// Amaryllis: a thick bare scape with scarlet six-parted trumpets looking outward, strap leaves from a large
// bulb.

#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Herb.h"
#include "plates/engraver/botany/Leaf.h"

using namespace tambrelle::engraver;

static const Subject subject{
    "day_024_amaryllis", [](Plate& p) {
        bulb(p, {200, 288}, 31, 46, palettes::brown);
        for (const Path& spine : {Path{{192, 292}, {150, 236}, {92, 214}, {62, 238}},
                                  Path{{208, 292}, {252, 232}, {310, 212}, {340, 240}},
                                  Path{{194, 292}, {168, 230}, {128, 190}, {86, 176}},
                                  Path{{206, 292}, {232, 228}, {272, 192}, {318, 176}}})
            leaf(p, spine,
                 {.width = 8, .shape = shapes::linear, .veins = 0, .parallel = true, .contour = 0.7});
        tube(p, {{200, 294}, {201, 220}, {200, 128}}, {8, 7, 6.4}, {.lines = Lines::along});
        struct Trumpet {
            double degrees, tilt;
            Point at;
        };
        leaf(p, {{200, 130}, {188, 108}, {186, 84}},
             {.width = 7, .shape = shapes::lance, .palette = palettes::pink, .veins = 0, .parallel = true});
        const FlowerForm trumpet{.petals = 6,
                                 .length = 74,
                                 .width = 17,
                                 .baseAngle = 14,
                                 .tipAngle = 76,
                                 .shape = {0.35, 0.6, 0.9, 1, 0.75, 0},
                                 .palette = palettes::scarlet,
                                 .cup = 1.4,
                                 .curl = 10,
                                 .marking =
                                     [](double u, double v) {
                                         return 0.34 * (1 - maths::smooth(0, 0.5, u)) -
                                                0.2 * maths::exp(-v * v * 60) * (1 - u);
                                     },
                                 .stamens = 6,
                                 .stamenLength = 0.86};
        for (const Trumpet& t : {Trumpet{-64, 18, {206, 124}}, Trumpet{-116, 18, {194, 124}},
                                 Trumpet{0, 30, {206, 128}}, Trumpet{180, 30, {194, 128}}}) {
            FlowerForm form = trumpet;
            form.tilt = t.tilt;
            form.length = t.tilt > 20 ? 78 : 72;
            const Point base = polar(t.at, t.degrees, 16);
            stem(p, {t.at, base}, {3.6, 4.4});
            flower(p, base, t.degrees, form);
        }
    }};
