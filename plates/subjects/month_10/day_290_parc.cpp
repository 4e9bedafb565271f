#include "plates/engraver/Body.h"
#include "plates/engraver/Face.h"
#include "plates/engraver/Ground.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/carpentry/Weave.h"
#include "plates/engraver/carpentry/Wheel.h"
#include "plates/engraver/carpentry/Wood.h"

using namespace tambrelle::engraver;

namespace {

void sheep(Plate& p, Point foot, double size, bool turnedRight) {
    const auto at = [&](double x, double y, double z, double r) {
        return Joint{foot.x + x * size, foot.y + y * size, z * size, r * size};
    };
    Body s;
    for (const double x : {-17.0, 18.0}) {
        s.chain({at(x + 4, -22, -7, 3.6), at(x + 4, -2, -7, 2.4)}, {.blend = 3, .palette = 1});
        s.chain({at(x, -22, 7, 3.8), at(x, 0, 7, 2.6)}, {.blend = 3, .palette = 1});
    }
    s.chain({at(-16, -34, 0, 16), at(2, -34, 0, 17), at(20, -33, 0, 16)}, {.blend = 4});
    s.chain({at(-22, -42, 2, 10), at(-32, -50, 4, 8)}, {.blend = 6});
    s.chain({at(-34, -50, 5, 7), at(-46, -42, 7, 4.2)}, {.blend = 3, .palette = 1});
    s.chain({at(-32, -54, 11, 2.4), at(-25, -50, 15, 1.6)}, {.blend = 1.5, .palette = 1});
    if (turnedRight)
        s.mirror(foot.x);
    Body::Style style;
    style.palettes = {palettes::fleece, palettes::tan};
    style.hatched = true;
    style.cuts.from = 0.5;
    s.engrave(p, style);
    s.fur(p, {.spacing = 3.4,
              .length = 6,
              .width = 0.6,
              .from = -1,
              .curl = 230,
              .where = [foot, size, turnedRight](Point q) {
                  const double x = (q.x - foot.x) * (turnedRight ? -1 : 1) / size, y = (q.y - foot.y) / size;
                  return y < -18 && x > -33;
              }});
    const double side = turnedRight ? -1 : 1;
    p.dot({foot.x - side * 37 * size, foot.y - 49 * size}, 1.4 * size);
}

} // namespace

// The sheepfold: wattle hurdles set in a square on the field, three sheep within, the shepherd's hut on
// wheels.
static const Subject subject{
    "day_290_parc", [](Plate& p) {
        ground(p, 40, 360, 296, 8);
        const Axes field{.origin = {70, 296}, .away = {0.6, -0.62}};
        constexpr double wide = 184, deep = 140, high = 60;
        const auto hurdle = [&](Vector3 a, Vector3 b, std::size_t stakes, double tone) {
            const auto at = [&](double u, double v) {
                const Vector3 q = a + (b - a) * v;
                return field.at({q.x, q.y, 4 + u * (high - 8)});
            };
            weave(p, {at, [tone](double u, double) { return tone - 0.1 * u; }},
                  {.palette = palettes::tan, .rows = 8, .stakes = stakes, .bulge = 0.3, .contour = 0.5});
            for (std::size_t k = 0; k <= stakes; k += 3) {
                const Vector3 q = a + (b - a) * (static_cast<double>(k) / static_cast<double>(stakes));
                pole(p, {field.at({q.x, q.y, -6}), field.at({q.x, q.y, high + 7})}, 3.4);
            }
        };
        // The hut stands behind.
        const Axes yard{.origin = field.at({70, deep + 20, 10}), .away = {0.5, -0.34}};
        wheel(p, yard.at({16, 0, 0}), {.radius = 14, .spokes = 6, .rim = 3, .depth = {3, 0}});
        block(p, yard, {0, 0, 6}, {84, 54, 66}, {.tone = 0.05});
        const Path gable{yard.at({0, 0, 66}), yard.at({84, 0, 66})};
        face(p, {yard.at({84, 0, 66}), yard.at({84, 54, 66}), yard.at({84, 27, 98})},
             {.tone = 0.6, .lines = -90, .grain = 0.1});
        face(p,
             {yard.at({-8, -5, 62}), yard.at({92, -5, 62}), yard.at({92, 27, 101}), yard.at({-8, 27, 101})},
             {.tone = 0.46,
              .palette = palettes::straw,
              .lines = -64,
              .spacing = 2.2,
              .grain = 0.25,
              .shade = 0.3});
        face(p, {yard.at({30, 0, 8}), yard.at({54, 0, 8}), yard.at({54, 0, 54}), yard.at({30, 0, 54})},
             {.tone = 0.7, .palette = palettes::darkwood, .lines = 90});
        wheel(p, yard.at({70, -4, 0}), {.radius = 16, .spokes = 6, .rim = 3.4, .depth = {3, 0}});
        hurdle({0, deep, 0}, {wide, deep, 0}, 15, 0.38);
        hurdle({0, deep, 0}, {0, 0, 0}, 12, 0.3);
        sheep(p, field.at({132, 100, 0}), 1.1, true);
        sheep(p, field.at({46, 96, 0}), 1.1, false);
        sheep(p, field.at({98, 40, 0}), 1.3, false);
        hurdle({wide, deep, 0}, {wide, 0, 0}, 12, 0.58);
        hurdle({0, 0, 0}, {wide, 0, 0}, 15, 0.34);
        grassTufts(p, 50, 330, 304, 10);
    }};
