#include "plates/engraver/botany/Cereal.h"

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Tube.h"

namespace tambrelle::engraver {

void ear(Plate& plate, const Path& spine, const EarForm& f) {
    const Path s = resample(spline(spine), 160);
    tube(plate, spine, {1.2, 0.7}, {.palette = f.palette, .spacing = 2.2, .shade = 0.1});
    for (int k = 0; k < f.spikelets; ++k) {
        const double q = 1 - (k + 0.6) / f.spikelets;
        const Point at = along(s, q);
        const double way = angleAlong(s, q);
        const Point n = rightOf(direction(way));
        const double share = std::min(1.0, 0.5 + 1.3 * k / f.spikelets) *
                             std::min(1.0, 0.62 + 1.6 * (f.spikelets - k) / f.spikelets);
        std::vector<double> sides = k % 2 == 0 ? std::vector<double>{-1, 1} : std::vector<double>{1, -1};
        if (f.lax)
            sides.resize(1);
        if (f.rows == 3)
            sides.push_back(0.05);
        for (const double side : sides) {
            const Point base = at + n * (side * f.width * (f.lax ? 0.25 : 0.42));
            const double a = way + side * f.angle;
            const Point tip = polar(base, a, f.length * share);
            if (f.awn > 0) {
                const Point end =
                    polar(tip, way + side * f.awnSpread * (0.5 + 0.5 * q) + plate.random.around(1.5),
                          std::max(f.awn * plate.random.uniform(0.88, 1.08), 2.0));
                plate.stroke(spline({polar(base, a, f.length * 0.6), tip,
                                     lerp(tip, end, 0.5) + direction(way) * (f.awn * 0.03), end},
                                    8),
                             {.width = 0.62, .swell = 0, .fade = 0.95, .wobble = 0.1});
            }
            leaflet(plate, base, tip,
                    {.width = f.width * (0.7 + 0.3 * share) * (std::fabs(side) < 0.5 ? 0.9 : 1.0),
                     .palette = f.palette,
                     .shape = {0.45, 0.85, 1, 0.9, 0.55, 0},
                     .tone = f.tone + (n.x * side > 0 ? 0.16 : 0.0),
                     .contour = 0.6,
                     .bend = -side * f.width * 0.22});
            plate.stroke({lerp(base, tip, 0.15), lerp(base, tip, 0.5) + n * (side * f.width * 0.34),
                          lerp(base, tip, 0.92)},
                         {.width = 0.42, .swell = 0.1, .fade = 0.3, .wobble = 0});
        }
    }
}

void grassPanicle(Plate& plate, const Path& stem, double from, const PanicleForm& f) {
    for (int i = 0; i < f.whorls; ++i) {
        const double t = i / static_cast<double>(std::max(f.whorls - 1, 1));
        const double q = from + (1 - from) * t;
        const Point at = along(stem, q);
        const double way = angleAlong(stem, q), reach = f.width * f.taper(t);
        for (const double side : {-1.0, 1.0, -0.55, 0.6}) {
            if (reach < 3 && std::fabs(side) < 1)
                continue;
            const double a = way + side * f.angle * (1 - 0.25 * t) + plate.random.around(5);
            const Point bow = polar(at, a, reach * 0.62);
            const Point end = polar(bow, a, reach * 0.38) +
                              Point{(side > 0 ? 1 : -1) * reach * 0.08, f.hang * reach * 0.30};
            const Path branch = spline({at, bow, end}, 14);
            plate.stroke(branch, {.width = 0.75, .swell = 0, .fade = 0.3});
            for (int k = 0; k < f.perBranch; ++k) {
                const double u = f.perBranch > 1 ? 0.4 + 0.6 * k / (f.perBranch - 1.0) : 1;
                const Point from2 = along(branch, u);
                const double out =
                    f.hang > 0.5 ? 90 - (side > 0 ? 8 : -8) : angleAlong(branch, u) + (k % 2 == 0 ? 25 : -25);
                const Point top = polar(from2, f.hang > 0.5 ? 80 + plate.random.around(20) : out, 3.5);
                plate.stroke({from2, top}, {.width = 0.5, .swell = 0, .fade = 0, .wobble = 0});
                if (f.grain > 0) {
                    ball(plate, polar(top, out, f.grain), f.grain,
                         {.palette = f.palette,
                          .direction = out,
                          .squash = 1.15,
                          .spacing = 1.6,
                          .contour = 0.5,
                          .shade = 0.15,
                          .halo = 0.25});
                    continue;
                }
                for (const double turn : {-13.0, 13.0})
                    leaflet(plate, top, polar(top, out + turn, f.spikelet),
                            {.width = f.spikeletWidth,
                             .palette = f.palette,
                             .shape = {0.4, 0.9, 1, 0.75, 0.35, 0},
                             .tone = turn < 0 ? 0.1 : 0.24,
                             .contour = 0.5});
                if (f.awn > 0)
                    plate.stroke(spline({polar(top, out, f.spikelet * 0.6),
                                         polar(top, out + 4, f.spikelet * 0.6 + f.awn * 0.5),
                                         polar(top, out - 10, f.spikelet * 0.6 + f.awn)},
                                        6),
                                 {.width = 0.55, .swell = 0, .fade = 0.9});
            }
        }
    }
}

void strapLeaf(Plate& plate, Point base, double degrees, double length, double width, double droop,
               const Palette& palette) {
    const int side = direction(degrees).x < 0 ? -1 : 1;
    const Point a = polar(base, degrees, length * 0.35),
                b = polar(a, degrees + side * droop * 0.45, length * 0.33),
                c = polar(b, degrees + side * droop, length * 0.32);
    leaf(plate, {base, a, b, c},
         {.width = width,
          .shape = {0.75, 1, 0.98, 0.8, 0.45, 0},
          .palette = palette,
          .veins = 0,
          .parallel = true,
          .right = side < 0 ? 1 : 0.8,
          .left = side < 0 ? 0.8 : 1,
          .contour = 0.65});
}

void cereal(Plate& plate, const CerealForm& f) {
    std::vector<double> stems = f.stems;
    std::stable_sort(stems.begin(), stems.end(),
                     [](double a, double b) { return std::fabs(a) > std::fabs(b); });
    int n = 0;
    for (const double lean : stems) {
        const double share = lean / 70;
        const double bodyHeight = (f.height - f.headLength) * (1 - 0.06 * std::fabs(share));
        const Point foot = f.foot + Point{share * 7, 0},
                    middle = f.foot + Point{lean * 0.36, -bodyHeight * 0.6},
                    neck = f.foot + Point{lean * 0.78, -bodyHeight};
        const double side = lean == 0 ? 1 : (lean < 0 ? -1 : 1);
        const Point top = neck + Point{lean * 0.32 + side * f.nod * 0.8, -f.headLength + f.nod * 0.75};
        const Point bend = neck + Point{lean * 0.2 + side * f.nod * 0.22, -f.headLength * 0.55};
        tube(plate, {foot, middle, neck, lerp(neck, bend, 0.12)},
             {f.radius, f.radius * 0.85, f.radius * 0.65}, {.palette = f.palette, .spacing = 1.9});
        if (n < f.leaves) {
            const Point at = along(spline({foot, middle, neck}), 0.30 + 0.14 * n);
            strapLeaf(plate, at, -90 + side * (n % 2 == 0 ? 28 : -30), f.leafLength, f.leafWidth, 78,
                      f.leafPalette);
            ++n;
        }
        f.head(plate, {neck, bend, top});
    }
}

} // namespace tambrelle::engraver
