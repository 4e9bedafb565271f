#include "plates/engraver/botany/RootVegetable.h"

#include "plates/engraver/Relief.h"
#include "plates/engraver/botany/Roots.h"

namespace tambrelle::engraver {

using maths::smooth;

Path swollenRoot(Plate& plate, const RootVegetableForm& f) {
    const Point way = direction(f.direction), side = rightOf(way);
    const double bow = f.length * 0.02;
    const double share = f.length / (f.length + f.tail);
    std::vector<double> radii;
    constexpr int knots = 24;
    for (int k = 0; k <= knots; ++k) {
        const double q = k / static_cast<double>(knots);
        radii.push_back(q < share ? f.shape(q / share)
                                  : std::max(0.35, f.shape(1) * (1 - (q - share) / (1 - share)) *
                                                       (1 - (q - share) / (1 - share))));
    }
    const double all = f.length + f.tail;
    const Path spine{f.crown, f.crown + way * (all * 0.35) + side * bow,
                     f.crown + way * (all * 0.68) - side * bow,
                     f.crown + way * (all * 0.88) + side * (bow * 1.5), f.crown + way * all - side * bow};
    for (int k = 0; k < f.hairs; ++k) {
        const double q = 0.3 + 0.6 * (k + 0.5) / f.hairs;
        const int hand = k % 2 == 0 ? 1 : -1;
        rootlets(plate, along(spline(spine), q) - side * (hand * f.shape(q / share) * 0.92), 1,
                 f.direction + hand * 55, 10, 9 + f.length * 0.08);
    }
    const double widest = f.shape.greatest();
    if (widest * 2.4 > f.length) {
        // A globe: a turned solid, whose tail is a thin tube.
        const Point end = f.crown + way * (f.length - 3);
        tube(plate,
             {end - way * 5, end + way * (f.tail * 0.45) + side * 2, end + way * (f.tail * 0.75) - side * 2,
              end + way * f.tail},
             {f.shape(1) + 0.6, 2.2, 1.3, 0.4}, {.palette = f.lower.value_or(f.palette), .spacing = 1.8});
        LatheForm body{.direction = f.direction, .tilt = 0.1, .palette = f.palette, .lines = f.lines};
        if (f.lower)
            body.tint = [&f](double u, double, double tone, Colour c) {
                return mix(c, ramp(*f.lower, tone * 0.8), smooth(f.lowerFrom - 0.14, f.lowerFrom + 0.14, u));
            };
        const LatheSurface s = lathe(plate, f.crown, f.length, f.shape, body);
        for (int k = 0; k < f.lenticels; ++k) {
            const double u = plate.random.uniform(0.12, 0.92), a = plate.random.uniform(20, 150);
            plate.stroke(s.ring(u, a, a + plate.random.uniform(8, 26)),
                         {.width = 0.6, .swell = 0.3, .fade = 0.7});
        }
        return s.outline;
    }
    Path curve =
        tube(plate, spine, Profile(radii),
             {.palette = f.palette, .lines = f.lines, .spacing = 2.0, .tone = -0.04, .rough = f.rough});
    for (int k = 0; k < f.lenticels; ++k) {
        const double q = plate.random.uniform(0.05, 0.85), r = f.shape(q / share);
        const Point n = rightOf(direction(angleAlong(curve, q)));
        const double x = plate.random.uniform(-0.85, 0.5), reach = r * plate.random.uniform(0.2, 0.5);
        const Point a = along(curve, q) - n * (x * r);
        plate.stroke(spline({a, a - n * (reach * 0.5) + way * 1.2, a - n * reach + way * 0.3}, 6),
                     {.width = 0.7, .swell = 0.3, .fade = 0.7});
    }
    return curve;
}

void rootVegetable(Plate& plate, const RootVegetableForm& f) {
    const double up = f.direction + 180;
    const Point side = rightOf(direction(up));
    const double neck = f.shape(0.02);
    swollenRoot(plate, f);
    for (int k = 0; k < f.leaves; ++k) {
        const int place = k % 2 == 0 ? k / 2 : f.leaves - 1 - k / 2;
        const double t = f.leaves > 1 ? (place - (f.leaves - 1) / 2.0) / ((f.leaves - 1) / 2.0) : 0;
        const Point base = f.crown + side * (t * neck * 0.6) + direction(f.direction) * 3;
        growLeaf(plate, base, up + t * f.leafSpread, f.leafLength * (1 - 0.15 * std::fabs(t)), f.leafWidth,
                 f.leaf, t * 18);
    }
    // The bases of the stalks, in front.
    for (int k = 0; k < f.leaves; ++k) {
        const double t = f.leaves > 1 ? (k - (f.leaves - 1) / 2.0) / ((f.leaves - 1) / 2.0) : 0;
        const Point base =
            f.crown + side * (t * neck * 0.72) + direction(f.direction) * (4 - 2 * std::fabs(t));
        tube(plate,
             {base, base + direction(up + t * f.leafSpread * 0.4) * 7,
              base + direction(up + t * f.leafSpread * 0.7) * 15},
             {f.stalkRadius * 1.15, f.stalkRadius * 0.6},
             {.palette = f.stalk, .spacing = 1.5, .shade = 0.15});
    }
}

void tuber(Plate& plate, Point centre, const TuberForm& f) {
    const double a = plate.random.uniform(0, 6.28), b = plate.random.uniform(0, 6.28);
    const Point d = direction(f.direction), n = rightOf(d);
    Path outline;
    for (int k = 0; k < 60; ++k) {
        const double t = 2 * maths::pi * k / 60;
        const double r = 1 + f.knobs * (maths::sin(2 * t + a) + 0.8 * maths::sin(3 * t + b));
        outline.push_back(centre + d * (f.length / 2 * r * maths::cos(t)) +
                          n * (f.width / 2 * r * maths::sin(t)));
    }
    const ReliefSurface s = relief(plate, outline,
                                   {.palette = f.palette,
                                    .bevel = std::min(f.length, f.width) / 2,
                                    .lines = {0.5, 0.75, 0.45},
                                    .crossFrom = 0.68});
    for (int k = 0; k < f.eyes; ++k) {
        const Point p = centre + d * (f.length * 0.36 * plate.random.around(1)) +
                        n * (f.width * 0.32 * plate.random.around(1));
        plate.stroke(arc(p, 2.6, 1.5, 15, 165, 10), {.width = 0.8, .swell = 0.3, .fade = 0.3});
        plate.stroke(arc(p - Point{0, 0.8}, 1.2, 0.8, 0, 180, 8), {.width = 0.7, .swell = 0.3, .fade = 0.3});
    }
}

void cutFace(Plate& plate, Point c, const CutForm& f) {
    const auto ring = [&](double share) {
        return ellipse(c, f.radius * share, f.radius * share * f.squash, 64);
    };
    const auto at = [&](double degrees, double share) {
        const Point d = direction(degrees);
        return c + Point{d.x * f.radius * share, d.y * f.radius * share * f.squash};
    };
    plate.knockOut(ring(1));
    plate.flat(ring(1), f.rind, 0.4);
    plate.contour(ring(1), 1.0);
    plate.flat(ring(1 - f.rindWidth), f.flesh, 0.16);
    plate.contour(ring(1 - f.rindWidth), 0.5);
    for (int k = 1; k <= f.rings; ++k) {
        const double share = (1 - f.rindWidth) * k / (f.rings + 1.0);
        const Path r = ring(share);
        plate.contour(r, {.width = 0.6, .lit = 0.7});
        for (int j = 0; j < 60; ++j)
            if (j % 2 == k % 2)
                plate.stroke({at(j * 6, share), at(j * 6, share + 0.05)},
                             {.width = 0.45, .swell = 0, .fade = 0.5, .wobble = 0});
    }
    for (int k = 0; k < f.segments; ++k) {
        const double step = 360.0 / f.segments, a0 = step * (k + 0.09), a1 = step * (k + 0.91);
        const Path segment = closedSpline(
            {at((a0 + a1) / 2, 0.12), at(a0, 0.72), at(a0 + 4, 0.82), at(a1 - 4, 0.82), at(a1, 0.72)}, 6);
        plate.flat(segment, f.rind, 0.30);
        plate.contour(segment, 0.6);
        for (int j = 0; j < 7; ++j) {
            const double a = plate.random.uniform(a0 + 4, a1 - 4), r = plate.random.uniform(0.3, 0.6);
            plate.stroke({at(a, r), at(a, r + 0.16)},
                         {.width = 0.55, .swell = 0.4, .fade = 0.4, .wobble = 0});
        }
    }
    for (int k = 0; k < f.pips; ++k) {
        const double a = 360.0 * (k + 0.25) / f.pips;
        const double size = f.radius * 0.11;
        leaflet(plate, at(a, f.pipsAt - 0.10), at(a, f.pipsAt + 0.14),
                {.width = size * 0.6,
                 .palette = f.pip,
                 .shape = shapes::ovate,
                 .tone = 0.3,
                 .hatched = false,
                 .midrib = false,
                 .shade = 0});
    }
    if (f.stone > 0) {
        const Path pit = ring(f.stone);
        plate.contour(ring(f.stone * 1.14), 0.5);
        relief(plate, pit,
               {.palette = f.stonePalette,
                .bevel = f.radius * f.stone,
                .spacing = 1.7,
                .shade = 0.1,
                .halo = 0.2});
        for (int k = 0; k < 16; ++k)
            plate.stroke(spline({at(plate.random.uniform(0, 360), f.stone * 0.8 * plate.random.uniform()),
                                 at(plate.random.uniform(0, 360), f.stone * 0.5)},
                                4),
                         {.width = 0.5, .swell = 0.3, .fade = 0.5, .wobble = 0.4});
    }
}

} // namespace tambrelle::engraver
