#include "plates/engraver/botany/Branch.h"

#include "plates/engraver/Light.h"

namespace tambrelle::engraver {

using maths::smooth;

Path branch(Plate& plate, const BranchForm& f) {
    Path curve = spline(f.spine, 30);
    for (const BranchFruit& b : f.behind)
        b.fruit(plate, along(curve, b.at), angleAlong(curve, b.at));
    for (const Path& side : f.sideTwigs)
        twig(plate, side, {f.radius(0.7) * 0.7, f.radius(1) * 0.7}, f.bark);
    twig(plate, f.spine, f.radius, f.bark);
    for (const BranchLeaf& l : f.leaves) {
        const bool right = direction(l.degrees).x > 0;
        growLeaf(plate, along(curve, l.at), l.degrees, l.length, l.width, f.leaf, right ? 10 : -10);
    }
    for (const BranchFruit& b : f.fruits)
        b.fruit(plate, along(curve, b.at), angleAlong(curve, b.at));
    return curve;
}

LatheSurface pome(Plate& plate, Point at, const PomeForm& f) {
    const Point way = direction(f.direction), side = rightOf(way);
    const Point top = at + way * f.stalk;
    LatheForm form{.direction = f.direction,
                   .tilt = -f.tilt,
                   .palette = f.palette,
                   .lines = f.lines,
                   .ribs = f.ribs,
                   .ribDepth = f.ribDepth};
    if (f.blush)
        form.tint = [&f](double u, double angle, double tone, Colour c) {
            const double lit = 0.5 + 0.5 * maths::cos(angle - maths::radians(125));
            return mix(c, ramp(*f.blush, tone * 0.8 + 0.1),
                       0.85 * smooth(0.45, 0.95, lit * (0.75 + 0.5 * maths::sin(u * maths::pi))));
        };
    LatheSurface s = lathe(plate, top, f.length, f.shape, form);
    if (f.suture)
        plate.stroke(
            [&] {
                Path seam;
                for (int k = 0; k <= 30; ++k)
                    seam.push_back(s.at(0.02 + 0.96 * k / 30.0, 62));
                return seam;
            }(),
            {.width = 1.0, .swell = 0.15, .fade = 0.5});
    for (int k = 0; k < f.dots; ++k) {
        const double u = plate.random.uniform(0.06, 0.94), a = plate.random.uniform(10, 170);
        plate.dot(s.at(u, a), 0.42, sepia, 0.75);
    }
    if (f.velvet)
        for (std::size_t k = 0; k < 150; ++k) {
            const Point p = along(s.outline, static_cast<double>(k) / 150);
            const Point out = unit(p - centroid(s.outline));
            plate.stroke({p - out * 1.4, p + out * 1.2},
                         {.width = 0.4, .swell = 0, .fade = 0.8, .wobble = 0});
        }
    if (f.calyx > 0) {
        const Point end = s.at(1, 90);
        for (const double a : {-38.0, -14.0, 12.0, 36.0})
            leaflet(plate, end - way * 1.5, polar(end, f.direction + a, f.calyx),
                    {.width = f.calyx * 0.24,
                     .palette = palettes::bark,
                     .tone = 0.3,
                     .hatched = false,
                     .midrib = false});
    }
    // The stalk stands in a hollow.
    const Point root = s.at(0.02, 90);
    plate.stroke(arc(lerp(root, top, 0.5), f.shape(0.06) * 0.8, f.shape(0.06) * 0.25, 10, 170, 14),
                 {.width = 0.7, .swell = 0.4, .fade = 0.4});
    if (f.stalk > 0)
        tube(plate, {at, lerp(at, top, 0.5) + side * 1.5, top + way * 3}, {1.5, 1.3, 1.9},
             {.palette = palettes::bark, .spacing = 1.7});
    return s;
}

FruitAt hangingPome(PomeForm form) {
    return [form](Plate& p, Point at, double) { pome(p, at, form); };
}

void acorn(Plate& plate, Point at, double degrees, double r, const Palette& palette) {
    const Point ax = direction(degrees), side = rightOf(ax);
    lathe(plate, at + ax * (r * 0.55), r * 2.3,
          {r * 0.86, r * 0.92, r * 0.9, r * 0.76, r * 0.45, r * 0.12, 0.5},
          {.direction = degrees, .tilt = 0.1, .palette = palette, .lines = Lines::along, .spacing = 1.6});
    const Point tip = at + ax * (r * 2.82);
    plate.stroke({tip - ax * 2, tip, tip + ax * 3}, {.width = 1.6, .swell = 0, .fade = 0.7});
    const LatheSurface cup = lathe(plate, at - ax, r, {r * 0.25, r * 0.78, r * 1.04, r * 1.08, r},
                                   {.direction = degrees,
                                    .tilt = 0.25,
                                    .palette = palettes::burr,
                                    .spacing = 2.2,
                                    .coverage = 0.42,
                                    .tone = 0.1});
    const Plate::Clip clip(plate, cup.outline);
    for (int i = 0; i < 7; ++i)
        for (int k = 0; k < 12; ++k) {
            const double u = (i + 0.4) / 7, a = 8 + 164 * (k + 0.5 * (i % 2)) / 11.5,
                         front = maths::sin(maths::radians(a));
            const Point p = cup.at(u, a);
            const double w = (0.5 + r * 0.13 * front) * (0.5 + 0.5 * u);
            plate.stroke(spline({p - side * w, p + ax * (r * 0.13), p + side * w}, 5),
                         {.width = 0.7, .swell = 0.3, .fade = 0.3, .wobble = 0});
        }
}

void nut(Plate& plate, Point at, double degrees, double r, double length, const Palette& palette, bool scar) {
    const Point ax = direction(degrees), side = rightOf(ax);
    lathe(plate, at, length, {r * 0.72, r * 0.98, r, r * 0.86, r * 0.52, r * 0.15, 0.6},
          {.direction = degrees,
           .tilt = 0.12,
           .palette = palette,
           .lines = Lines::along,
           .spacing = 1.7,
           .highlight = 0.16});
    if (scar) {
        Path base;
        for (int k = 0; k < 40; ++k) {
            const double t = 2 * maths::pi * k / 40;
            base.push_back(at + side * (r * 0.70 * maths::cos(t)) + ax * (r * 0.30 * maths::sin(t) + 1));
        }
        plate.knockOut(base, {.halo = 0.2, .shade = 0});
        plate.flat(base, palettes::root, 0.3);
        plate.contour(base, 0.6);
        for (int k = 0; k < 9; ++k) {
            const double x = (k - 4) / 4.6;
            plate.stroke({at + side * (r * 0.68 * x) - ax * (r * 0.24 * std::sqrt(1 - x * x)),
                          at + side * (r * 0.68 * x) + ax * (r * 0.02)},
                         {.width = 0.5, .swell = 0, .fade = 0.7});
        }
    }
    const Point tip = at + ax * length;
    for (const double turn : {-18.0, 0.0, 16.0})
        plate.stroke({tip - ax * 2, tip + ax * 1.5, polar(tip, degrees + turn, length * 0.12 + 1)},
                     {.width = 0.8, .swell = 0, .fade = 0.7});
}

void drupelets(Plate& plate, Point at, double degrees, double radius, double length, const Palette& palette) {
    const Point ax = direction(degrees), side = rightOf(ax);
    const double size = radius * 0.34;
    const int rows = std::max(3, static_cast<int>(length / (size * 1.45)));
    for (int i = rows - 1; i >= 0; --i) {
        const double u = (i + 0.5) / rows,
                     reach =
                         radius * maths::pow(std::max(0.0, maths::sin(maths::pi * (0.12 + 0.82 * u))), 0.7);
        const int n = std::max(2, static_cast<int>(reach * 3.0 / (size * 1.8)));
        std::vector<double> places;
        places.reserve(static_cast<std::size_t>(n));
        for (int k = 0; k < n; ++k)
            places.push_back((k + 0.5 + 0.5 * (i % 2) * (k + 1 < n ? 1 : 0)) / n * 2 - 1);
        std::stable_sort(places.begin(), places.end(),
                         [](double a, double b) { return std::fabs(a) > std::fabs(b); });
        for (const double x : places)
            ball(plate, at + ax * (length * u) + side * (reach * 0.85 * x), size * (1 - 0.12 * std::fabs(x)),
                 {.palette = palette,
                  .tone = 0.12 * dot(side * x, shadeSide) * 1.5,
                  .spacing = 1.5,
                  .contour = 0.55,
                  .shade = 0.25,
                  .halo = 0.3,
                  .highlight = 0.18});
    }
}

void samara(Plate& plate, Point at, double degrees, double length, double width, const Palette& palette) {
    const Point ax = direction(degrees), side = rightOf(ax);
    leaf(plate,
         {at + ax * (length * 0.12), at + ax * (length * 0.55) + side * (width * 0.2), at + ax * length},
         {.width = width * 0.5,
          .shape = {0.3, 0.55, 0.85, 1, 1, 0.8, 0},
          .palette = palette,
          .veins = 0,
          .parallel = true,
          .right = 1.2,
          .left = 0.75,
          .spacing = 2.2,
          .coverage = 0.32});
    ball(plate, at + ax * (length * 0.12), width * 0.34,
         {.palette = palette, .direction = degrees, .squash = 1.5, .tone = 0.1});
}

void catkin(Plate& plate, const Path& spine, double radius, const Palette& palette, const Palette& dust) {
    const Path s = spline(spine, 30);
    const double size = arcLength(s);
    const int rows = std::max(6, static_cast<int>(size / (radius * 0.62)));
    for (int i = rows - 1; i >= 0; --i) {
        const double q = (i + 0.5) / rows,
                     r = radius * std::sqrt(std::max(0.0, 1 - maths::pow(std::fabs(2 * q - 1), 3)));
        const Point at = along(s, q);
        const double way = angleAlong(s, q);
        const Point n = rightOf(direction(way));
        for (const double x : {-0.85, 0.85, -0.3, 0.35}) {
            const Point base = at - n * (x * r * (i % 2 == 0 ? 1 : 0.82));
            leaflet(plate, base, polar(base, way - x * 38, radius * 1.15),
                    {.width = radius * 0.42,
                     .palette = palette,
                     .shape = shapes::elliptic,
                     .tone = 0.12 + 0.2 * std::max(0.0, dot(n * -x, shadeSide)),
                     .contour = 0.45,
                     .hatched = false,
                     .midrib = false,
                     .shade = 0.12,
                     .halo = 0.15});
            if (plate.random.chance(0.4))
                plate.dot(polar(base, way - x * 38, radius * 0.8), 0.55, dust.middle);
        }
    }
}

void bud(Plate& plate, Point at, double degrees, double length, const Palette& palette) {
    leaflet(plate, at, polar(at, degrees - 14, length * 0.8),
            {.width = length * 0.24,
             .palette = palette,
             .shape = shapes::ovate,
             .hatched = false,
             .midrib = false});
    leaflet(plate, at, polar(at, degrees + 14, length * 0.8),
            {.width = length * 0.24,
             .palette = palette,
             .shape = shapes::ovate,
             .hatched = false,
             .midrib = false});
    leaflet(
        plate, at, polar(at, degrees, length),
        {.width = length * 0.24, .palette = palette, .shape = shapes::ovate, .tone = 0.1, .midrib = false});
}

void thorn(Plate& plate, Point at, double degrees, double length, const Palette& palette) {
    leaflet(plate, at, polar(at, degrees, length),
            {.width = length * 0.13,
             .palette = palette,
             .shape = {1, 0.8, 0.5, 0.3, 0},
             .tone = 0.1,
             .contour = 0.55,
             .hatched = false,
             .midrib = false});
}

} // namespace tambrelle::engraver
