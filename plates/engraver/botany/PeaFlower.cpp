#include "plates/engraver/botany/Flower.h"
#include "plates/engraver/botany/Leaf.h"

namespace tambrelle::engraver {

namespace {

// A flower's own axes: x out along its axis, y towards its standard, both in shares of its size.
class Axes {
public:
    Axes(Point base, double degrees, double size, int side)
        : base_(base), out_(direction(degrees) * size), up_(direction(degrees - side * 90) * size) {}
    Point operator()(double x, double y) const { return base_ + out_ * x + up_ * y; }
    Path outline(const Path& knots) const {
        Path on;
        for (const Point& k : knots)
            on.push_back((*this)(k.x, k.y));
        return closedSpline(on, 6);
    }

private:
    Point base_, out_, up_;
};

// A petal whose veins fan out from its claw; `tone` at the claw and at the rim.
void petal(Plate& plate, Point claw, const Path& rim, const Palette& palette, double atClaw, double atRim,
           double size) {
    plate.knockOut(rim, {.halo = 0.4, .shade = 0.25});
    const Path around = resample(joined(rim, {rim.front()}), 33);
    constexpr std::size_t steps = 9;
    Patch patch(around.size(), steps);
    for (std::size_t i = 0; i < around.size(); ++i)
        for (std::size_t j = 0; j < steps; ++j) {
            const double u = fraction(j, steps);
            patch.point(i, j) = lerp(claw, around[i], u);
            patch.tone(i, j) = maths::clamp01(maths::lerp(atClaw, atRim, maths::smooth(0, 0.8, u)));
        }
    const Plate::Clip within(plate, rim);
    plate.flat(rim, palette, atRim * 0.78 + 0.06);
    plate.wash(patch, palette, 0.78, 0.06, 0.08);
    if (size > 13)
        plate.hatch(patch, {.spacing = 1.5, .coverage = 0.4, .from = 0.24, .widest = 0.55});
}

} // namespace

void peaFlower(Plate& plate, Point base, double degrees, double size, const Palette& palette, int side,
               std::optional<Palette> wings) {
    const Axes at(base, degrees, size, side);
    const Palette wing = wings.value_or(palette);
    const double line = std::clamp(size / 40, 0.5, 0.8);
    // The standard stands up behind, folded along its middle: its far half is seen as a narrow dark strip.
    const Path standard = at.outline({{0.20, 0.02},
                                      {0.02, 0.24},
                                      {-0.08, 0.58},
                                      {0.02, 0.90},
                                      {0.24, 1.02},
                                      {0.40, 0.95},
                                      {0.58, 0.98},
                                      {0.74, 0.80},
                                      {0.72, 0.54},
                                      {0.54, 0.26},
                                      {0.36, 0.06}});
    petal(plate, at(0.27, 0.04), standard, palette, 0.62, 0.16, size);
    plate.contour(standard, line);
    plate.stroke(spline({at(0.29, 0.10), at(0.36, 0.5), at(0.39, 0.93)}),
                 {.width = line, .swell = 0.1, .fade = 0.5});
    // The keel: a pale boat whose beak rises beyond the wings.
    const Path keel = at.outline(
        {{0.22, 0.0}, {0.40, -0.24}, {0.68, -0.34}, {0.94, -0.22}, {1.06, 0.08}, {0.92, 0.02}, {0.60, 0.02}});
    petal(plate, at(0.3, -0.04), keel, mix(wing, palettes::whiteflower, 0.7), 0.3, 0.12, size);
    plate.contour(keel, line);
    // The wings lie on the keel's flanks; of two, the farther shows as a rim above.
    const Path farther = at.outline(
        {{0.26, 0.06}, {0.44, 0.28}, {0.68, 0.42}, {0.90, 0.36}, {0.94, 0.20}, {0.66, 0.12}, {0.4, 0.02}});
    petal(plate, at(0.28, 0.04), farther, wing, 0.7, 0.5, size);
    plate.contour(farther, line);
    const Path near = at.outline({{0.24, 0.02},
                                  {0.40, 0.20},
                                  {0.66, 0.31},
                                  {0.90, 0.22},
                                  {0.98, 0.04},
                                  {0.86, -0.12},
                                  {0.62, -0.18},
                                  {0.38, -0.10}});
    petal(plate, at(0.26, 0.0), near, wing, 0.66, 0.26, size);
    plate.contour(near, line);
    // The calyx: a cup with pointed teeth.
    const Path calyx = at.outline({{-0.06, 0.02},
                                   {0.02, 0.13},
                                   {0.20, 0.17},
                                   {0.34, 0.25},
                                   {0.28, 0.10},
                                   {0.42, 0.02},
                                   {0.28, -0.04},
                                   {0.34, -0.18},
                                   {0.18, -0.14},
                                   {0.02, -0.10}});
    plate.knockOut(calyx, {.halo = 0.3, .shade = 0.15});
    plate.flat(calyx, palettes::leaf, 0.42);
    plate.contour(calyx, line);
}

} // namespace tambrelle::engraver
