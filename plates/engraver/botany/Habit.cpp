#include "plates/engraver/botany/Habit.h"

#include "plates/engraver/Relief.h"
#include "plates/engraver/Tube.h"

namespace tambrelle::engraver {

void foliageClump(Plate& plate, Point c, double rx, double ry, const Palette& palette, double mark,
                  double tone) {
    const int lobes = std::max(7, static_cast<int>((rx + ry) / 4.2));
    const double phase = plate.random.uniform(0, 6);
    Path outline;
    for (int k = 0; k < lobes * 8; ++k) {
        const double a = 2 * maths::pi * k / (lobes * 8);
        const double r = 1 + 0.13 * (maths::pow(std::fabs(maths::sin(a * lobes / 2 + phase)), 0.8) - 0.5) +
                         0.04 * maths::sin(a * 3 + phase);
        outline.push_back(c + Point{rx * r * maths::cos(a), ry * r * maths::sin(a)});
    }
    const ReliefSurface s = relief(plate, outline,
                                   {.palette = palette,
                                    .bevel = std::min(rx, ry) * 0.9,
                                    .crossFrom = 1,
                                    .spacing = 2.4,
                                    .coverage = 0.38,
                                    .hatchFrom = 0.5,
                                    .tone = tone,
                                    .contour = 0.6,
                                    .shade = 0.25,
                                    .halo = 0.3,
                                    .occlusion = false});
    const Plate::Clip clip(plate, outline);
    const int marks = static_cast<int>(rx * ry / 3.0);
    for (int k = 0; k < marks; ++k) {
        const Point p = c + Point{plate.random.around(rx * 1.1), plate.random.around(ry * 1.1)};
        const auto t = s.toneAt(p);
        if (!t || plate.random.uniform() > 0.12 + 1.2 * *t)
            continue;
        plate.stroke(spline({p + Point{-mark * 0.7, mark * 0.1}, p + Point{-mark * 0.35, -mark * 0.45}, p,
                             p + Point{mark * 0.4, -mark * 0.4}, p + Point{mark * 0.75, mark * 0.15}},
                            4),
                     {.width = 0.45 + 0.6 * *t, .swell = 0.2, .fade = 0.4, .wobble = 0});
    }
}

void trunk(Plate& plate, Point foot, Point top, double r, const TrunkForm& f) {
    const Path s =
        tube(plate, {foot, lerp(foot, top, 0.5), top}, {r * 1.06, r, r * 0.96},
             {.palette = f.palette,
              .lines = f.bark == TrunkForm::Bark::furrowed || f.bark == TrunkForm::Bark::cork ? Lines::along
                                                                                              : Lines::across,
              .spacing = 2.1,
              .contour = 1.0,
              .rough = f.bark == TrunkForm::Bark::smooth ? 0.02 : 0.05,
              .cutEnd = true});
    const double size = arcLength(s);
    const auto at = [&](double q, double x) {
        return along(s, q) + rightOf(direction(angleAlong(s, q))) * (x * r);
    };
    switch (f.bark) {
    case TrunkForm::Bark::furrowed:
    case TrunkForm::Bark::cork:
        for (int k = 0; k < static_cast<int>(size * r / 26); ++k) {
            const double q = plate.random.uniform(0, 0.92), x = plate.random.around(0.92),
                         run = plate.random.uniform(0.04, 0.12);
            plate.stroke(spline({at(q, x), at(q + run * 0.5, x + plate.random.around(0.07)),
                                 at(std::min(1.0, q + run), x + plate.random.around(0.06))},
                                6),
                         {.width = plate.random.uniform(0.6, f.bark == TrunkForm::Bark::cork ? 2.2 : 1.4),
                          .swell = 0.4,
                          .fade = 0.5});
        }
        break;
    case TrunkForm::Bark::birch:
        for (int k = 0; k < static_cast<int>(size / 5); ++k) {
            const double q = plate.random.uniform(0.02, 0.98), x = plate.random.around(0.8),
                         reach = plate.random.uniform(0.12, 0.45);
            plate.stroke({at(q, x - reach), at(q + 0.004, x), at(q, std::min(0.98, x + reach))},
                         {.width = plate.random.uniform(0.8, 2.4), .swell = 0.4, .fade = 0.4});
        }
        break;
    case TrunkForm::Bark::plane:
        for (int k = 0; k < static_cast<int>(size * r / 150); ++k) {
            const Point p = at(plate.random.uniform(0.05, 0.95), plate.random.around(0.75));
            const double w = r * plate.random.uniform(0.12, 0.3);
            const Path flake =
                closedSpline({p + Point{-w, 0}, p + Point{-w * 0.4, -w * 1.1}, p + Point{w * 0.7, -w * 0.8},
                              p + Point{w, w * 0.3}, p + Point{w * 0.2, w}},
                             6);
            plate.flat(flake, plate.random.chance(0.5) ? palettes::cream.middle : palettes::greygreen.middle,
                       0.9);
            plate.contour(flake, 0.7);
        }
        break;
    case TrunkForm::Bark::smooth:
        break;
    }
}

} // namespace tambrelle::engraver
