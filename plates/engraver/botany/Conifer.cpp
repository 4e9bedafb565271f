#include "plates/engraver/botany/Conifer.h"

#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

namespace tambrelle::engraver {

namespace {
void needle(Plate& plate, Point from, double degrees, double length, double width, const Palette& palette,
            double tone) {
    leaflet(plate, from, polar(from, degrees, length),
            {.width = width,
             .palette = palette,
             .shape = shapes::linear,
             .tone = tone,
             .contour = 0.4,
             .bend = plate.random.around(0.6),
             .hatched = false,
             .midrib = width > 1.1,
             .shade = 0.08,
             .halo = 0.2});
}
} // namespace

void needleTwig(Plate& plate, const Path& spine, const NeedleForm& f) {
    const Path s = resample(spline(spine), 120);
    if (f.flat)
        tube(plate, spine, {f.twig, f.twig * 0.5}, {.palette = f.bark, .spacing = 1.8, .rough = 0.1});
    for (const bool front : {false, true}) {
        if (front && !f.flat)
            tube(plate, spine, {f.twig, f.twig * 0.5}, {.palette = f.bark, .spacing = 1.8, .rough = 0.1});
        for (int k = 0; k < f.count; ++k) {
            const double q = (k + 0.5) / f.count;
            const double way = angleAlong(s, q), reach = f.length * (1 - 0.3 * q);
            for (const int side : {-1, 1}) {
                const double spread =
                    f.flat ? f.angle + plate.random.around(8) : f.angle * plate.random.uniform(0.1, 1.1);
                if (f.flat == front)
                    continue;
                needle(plate, along(s, q + plate.random.around(0.004)), way + side * spread,
                       reach * plate.random.uniform(0.85, 1.1), f.width, f.palette, side < 0 ? 0.2 : 0.42);
            }
        }
    }
    needle(plate, s.back(), angleAlong(s, 1), f.length * 0.7, f.width, f.palette, 0.25);
}

void needleTufts(Plate& plate, const Path& spine, int tufts, int perTuft, double length,
                 const Palette& palette, double spread) {
    const Path s = spline(spine, 30);
    for (int k = 0; k < tufts; ++k) {
        const double q = (k + 0.6) / tufts;
        const int side = k % 2 == 0 ? 1 : -1;
        const Point at = along(s, q);
        const double out = angleAlong(s, q) + side * 68;
        const Point spur = polar(at, out, 3.4);
        tube(plate, {at, spur}, {1.8, 1.6}, {.palette = palettes::bark, .spacing = 1.6, .rough = 0.1});
        for (int j = 0; j < perTuft; ++j) {
            const double t = perTuft > 1 ? j / static_cast<double>(perTuft - 1) - 0.5 : 0;
            needle(plate, spur, out + t * spread + plate.random.around(4),
                   length * plate.random.uniform(0.85, 1.05) * (1 - 0.15 * std::fabs(t)), 0.85, palette,
                   0.2 + 0.25 * (t > 0 ? 1 : 0));
        }
    }
}

void scaleTwig(Plate& plate, const Path& spine, double sideLength, int sideTwigs, double radius,
               const Palette& palette) {
    const Path s = spline(spine, 30);
    const auto clothe = [&](const Path& way, double r) {
        const double size = arcLength(way);
        const int n = std::max(3, static_cast<int>(size / (r * 1.5)));
        plate.stroke(way, {.width = r, .swell = 0, .fade = 0.3, .wobble = 0});
        for (int k = 0; k < n; ++k) {
            const double q = (k + 0.2) / n, a = angleAlong(way, q);
            for (const int side : {-1, 1})
                leaflet(plate, along(way, q), polar(along(way, q), a + side * 30, r * 2.3),
                        {.width = r * 0.62,
                         .palette = palette,
                         .shape = shapes::ovate,
                         .tone = side < 0 ? 0.18 : 0.42,
                         .contour = 0.36,
                         .hatched = false,
                         .midrib = false,
                         .shade = 0.06,
                         .halo = 0.12});
        }
    };
    for (int k = 0; k < sideTwigs; ++k) {
        const double q = 0.12 + 0.85 * (k + 0.5) / sideTwigs;
        const int side = k % 2 == 0 ? 1 : -1;
        const double a = angleAlong(s, q) + side * (42 + plate.random.around(8)),
                     reach = sideLength * (1 - 0.55 * q) * plate.random.uniform(0.85, 1.1);
        const Point at = along(s, q), middle = polar(at, a, reach * 0.55),
                    end = polar(middle, a - side * 12, reach * 0.45);
        const Path way = spline({at, middle, end}, 12);
        for (const int hand : {-1, 1})
            for (const double u : {0.35, 0.62})
                clothe(spline({along(way, u),
                               polar(along(way, u), angleAlong(way, u) + hand * 40, reach * 0.34)},
                              8),
                       radius * 0.85);
        clothe(way, radius);
    }
    clothe(s, radius * 1.25);
}

void cone(Plate& plate, Point at, double degrees, const ConeForm& f) {
    const Point ax = direction(degrees), side = rightOf(ax);
    const Path core = [&] {
        Path right, left;
        for (int k = 0; k <= 30; ++k) {
            const double u = k / 30.0;
            right.push_back(at + ax * (f.length * u) + side * (f.radius * f.shape(u) * 0.92));
            left.push_back(at + ax * (f.length * u) - side * (f.radius * f.shape(u) * 0.92));
        }
        return band(right, left);
    }();
    plate.knockOut(core);
    plate.flat(core, f.palette, 0.62);
    scales(plate, at, degrees,
           {.radius = f.radius,
            .length = f.length,
            .shape = f.shape,
            .rows = f.rows,
            .perRow = f.perRow,
            .scaleWidth = f.radius * 2.5 / f.perRow,
            .scaleLength = f.length / f.rows * 2.0,
            .scaleShape = f.scaleShape,
            .palette = f.palette,
            .tone = 0.08,
            .spread = f.spread});
    if (!f.bracts)
        return;
    for (int j = 0; j < f.rows; ++j)
        for (int k = 0; k < f.perRow; ++k) {
            const double x = ((k + 0.5 + 0.5 * (j % 2)) / f.perRow * 2 - 1) * 0.9;
            if (std::fabs(x) > 0.95)
                continue;
            const double u = 0.97 - (j + 0.1) / f.rows;
            const Point base = at + ax * (f.length * std::max(u, 0.02)) + side * (f.radius * f.shape(u) * x);
            leaflet(plate, base, polar(base, degrees + 180 - x * 30, f.length / f.rows * 0.95),
                    {.width = 1.3,
                     .palette = palettes::straw,
                     .shape = {1, 0.9, 0.6, 0.2, 0},
                     .contour = 0.4,
                     .hatched = false,
                     .midrib = false});
        }
}

} // namespace tambrelle::engraver
