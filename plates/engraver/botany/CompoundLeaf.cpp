#include "plates/engraver/botany/CompoundLeaf.h"

#include "plates/engraver/Light.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Roots.h"

namespace tambrelle::engraver {

using maths::clamp01;
using maths::pi;
using maths::smooth;

Path palmateLeaf(Plate& plate, Point base, double degrees, double size, const PalmateForm& form) {
    const std::vector<Lobe>& lobes = form.lobes;
    const std::size_t n = lobes.size();
    const auto at = [&](double angle, double reach) { return polar(base, degrees + angle, reach * size); };
    Path bays{at(lobes.front().angle - 38, lobes.front().reach * 0.465)};
    for (std::size_t i = 0; i + 1 < n; ++i)
        bays.push_back(at((lobes[i].angle + lobes[i + 1].angle) / 2,
                          form.sinus * std::min(lobes[i].reach, lobes[i + 1].reach)));
    bays.push_back(at(lobes.back().angle + 38, lobes.back().reach * 0.465));

    struct Half {
        int side;
        Path vein, edge;
    };
    std::vector<Half> halves;
    constexpr std::size_t steps = 60;
    for (std::size_t i = 0; i < n; ++i) {
        const Point tip = at(lobes[i].angle, lobes[i].reach);
        for (const int side : {-1, 1}) {
            const Point bay = bays[i + (side > 0 ? 1 : 0)];
            const double neighbour = side < 0 ? (i > 0 ? lobes[i - 1].angle : lobes[0].angle - 76)
                                              : (i + 1 < n ? lobes[i + 1].angle : lobes[n - 1].angle + 76);
            const double a = lobes[i].angle;
            const Point middle = at(a + (neighbour - a) * 0.25 * form.bulge, lobes[i].reach * 0.80);
            Path edge = resample(spline({bay, middle, tip}, 20), steps);
            const Path normal = normals(edge);
            double outward = 0;
            for (std::size_t k = 0; k < steps; ++k)
                outward += dot(normal[k], edge[k] - lerp(base, tip, 0.5));
            for (std::size_t k = 0; k < steps; ++k) {
                const double q = fraction(k, steps), t = q * form.teeth, x = t - std::floor(t);
                edge[k] = edge[k] + normal[k] * ((outward > 0 ? 1 : -1) * form.toothHeight *
                                                 smooth(0, 0.15, q) * smooth(0, 0.06, 1 - q) * (x - 0.6));
            }
            halves.push_back({side, resample({base, tip}, steps), edge});
        }
    }
    Path outline{base};
    for (std::size_t i = 0; i < n; ++i) {
        outline = joined(outline, halves[2 * i].edge);
        outline = joined(outline, reversed(halves[2 * i + 1].edge));
    }
    plate.knockOut(outline);
    {
        const Plate::Clip clip(plate, outline);
        plate.flat(outline, form.palette, 0.3);
        for (const Half& half : halves) {
            constexpr std::size_t rows = 40, columns = 14;
            const Point d = half.vein.back() - half.vein.front();
            const Point outwards = rightOf(unit(d)) * half.side;
            const double side = dot(outwards, shadeSide) < 0 ? 0.18 : 0.46;
            Patch patch(rows, columns);
            for (std::size_t i = 0; i < rows; ++i)
                for (std::size_t j = 0; j < columns; ++j) {
                    const double s = fraction(i, rows), v = fraction(j, columns);
                    const Point vein = lerp(half.vein.front(), half.vein.back(), 0.10 + 0.90 * s);
                    const double e = maths::pow(s, 1.15) * (steps - 1);
                    const auto k = std::min(static_cast<std::size_t>(e), steps - 2);
                    const Point edge = lerp(half.edge[k], half.edge[k + 1], e - static_cast<double>(k));
                    patch.point(i, j) = lerp(vein, edge, v) + d * (0.05 * maths::sin(pi * v) * (1 - s));
                    patch.tone(i, j) = clamp01(side + form.tone + 0.30 * (1 - smooth(0, 0.4, v)) +
                                               0.12 * maths::cos(2 * pi * s * 5) * smooth(0.1, 0.4, v) +
                                               (side > 0.3 ? 0.12 * smooth(0.7, 1, v) : 0) +
                                               0.25 * (1 - smooth(0, 0.2, s)) - 0.05);
                }
            plate.flat({half.vein.front(), patch.point(0, 0), half.edge.front()}, form.palette,
                       side * 0.8 + 0.15);
            plate.wash(patch, form.palette, 0.72, 0.02, 0.12);
            plate.hatch(patch, {.spacing = 1.9, .coverage = form.coverage, .from = 0.26});
            for (const double f : {0.18, 0.38, 0.58, 0.78})
                plate.stroke(patch.row(f * (rows - 1)),
                             {.width = 0.55, .swell = 0, .fade = 0.8, .wobble = 0.05});
        }
    }
    for (const Half& half : halves)
        if (half.side < 0)
            plate.stroke(Path(half.vein.begin(), half.vein.end() - 3),
                         {.width = size > 30 ? 1.0 : 0.75, .swell = 0, .fade = 0.9, .wobble = 0.05});
    plate.contour(outline, {.width = form.contour, .wobble = 0.05});
    return outline;
}

void frond(Plate& plate, const Path& spine, const FrondForm& form) {
    const Path s = resample(spline(spine), 100);
    const Path t = tangents(s);
    const Profile rise = [&] {
        std::vector<double> knots;
        for (int k = 0; k <= 20; ++k) {
            const double q = k / 20.0;
            knots.push_back(q < form.peak ? maths::lerp(0.6, 1, q / std::max(form.peak, 1e-6))
                                          : maths::lerp(1, form.tip, (q - form.peak) / (1 - form.peak)));
        }
        return Profile(knots);
    }();
    tube(plate, spine, {form.rib, form.rib * 0.35}, {.palette = form.palette, .spacing = 3});
    const LeafletForm small{.width = form.leafletWidth * 0.8,
                            .palette = form.palette,
                            .shape = form.leafletShape,
                            .contour = 0.32,
                            .hatched = false,
                            .midrib = false,
                            .shade = 0.08,
                            .halo = 0.15};
    for (int k = 0; k < form.pairs; ++k) {
        const double q = (k + 0.5) / form.pairs;
        const auto i = static_cast<std::size_t>((form.from + (1 - form.from) * q) * 99);
        const double reach = form.length * rise(q), along = angleOf(t[i]);
        for (const int side : {-1, 1}) {
            const double a = along + side * (form.angle + plate.random.around(5));
            const Point p = s[i], e = polar(p, a, reach);
            if (form.subdivided == 0) {
                leaflet(plate, p, e,
                        {.width = form.leafletWidth,
                         .palette = form.palette,
                         .shape = form.leafletShape,
                         .hatched = reach > 8});
                continue;
            }
            const Path rib =
                resample(spline({p, (p + e) * 0.5 + t[i] * (reach * 0.06), e + t[i] * (reach * 0.12)}), 30);
            const Path ribWay = tangents(rib);
            plate.stroke(rib, {.width = 0.75, .swell = 0, .fade = 0.6});
            for (int j = 0; j < form.subdivided; ++j) {
                const double qq = 0.2 + 0.75 * (j + 0.5) / form.subdivided;
                const auto at = static_cast<std::size_t>(qq * 29);
                const double size = reach * 0.42 * (1 - 0.7 * qq) + 1.5;
                for (const int hand : {-1, 1})
                    leaflet(plate, rib[at],
                            polar(rib[at],
                                  angleOf(ribWay[at]) + hand * (form.subAngle + plate.random.around(8)),
                                  size),
                            small);
            }
            leaflet(plate, rib[26], rib[29] + ribWay[29] * 2.5, small);
        }
    }
    leaflet(
        plate, s[94], s[99] + t[99] * (form.length * 0.2),
        {.width = form.leafletWidth, .palette = form.palette, .shape = form.leafletShape, .hatched = false});
}

namespace {

LeafForm bladeOf(const LeafKind& kind, double width) {
    return {.width = width,
            .shape = kind.shape,
            .margin = kind.margin,
            .palette = kind.palette,
            .veins = kind.parallel ? 0 : kind.veins,
            .slant = kind.slant,
            .parallel = kind.parallel,
            .tone = kind.tone,
            .pucker = kind.pucker};
}

// A leaflet with as much detail as its size bears.
void bladeOrLeaflet(Plate& plate, Point base, Point tip, double halfWidth, const LeafKind& kind,
                    double bow = 0) {
    const Point side = rightOf(unit(tip - base));
    if (length(tip - base) > 13) {
        LeafForm form = bladeOf(kind, halfWidth);
        form.veins = kind.parallel ? 0 : std::min(kind.veins, 5.0);
        form.contour = 0.55;
        leaf(plate, {base, (base + tip) * 0.5 + side * bow, tip}, form);
    } else {
        leaflet(plate, base, tip,
                {.width = halfWidth, .palette = kind.palette, .shape = kind.shape, .bend = bow});
    }
}

void growPinnate(Plate& plate, Point p, double degrees, double size, double width, const LeafKind& kind,
                 double bend) {
    const Path spine{p, polar(p, degrees - bend * 0.3, size * 0.5), polar(p, degrees + bend, size)};
    const Path s = spline(spine, 40);
    tube(plate, {spine[0], spine[1], lerp(spine[1], spine[2], 0.7)}, {1.1, 0.6},
         {.palette = kind.stalk, .spacing = 1.7});
    const int pairs = std::max(1, kind.leaflets);
    for (int i = 0; i < pairs; ++i) {
        const double q = 0.22 + 0.62 * i / std::max(pairs - 1, 1);
        const Point at = along(s, q);
        const double way = angleAlong(s, q);
        const double reach = width * (2.1 - 0.5 * std::fabs(i / static_cast<double>(pairs) - 0.35));
        for (const int side : {-1, 1})
            bladeOrLeaflet(plate, at, polar(at, way + side * 58, reach), reach * kind.leafletWidth, kind,
                           side * -0.06 * reach);
    }
    const Point from = along(s, 0.86);
    if (kind.terminal)
        bladeOrLeaflet(plate, from, polar(from, angleAlong(s, 0.98), width * 2.0),
                       width * 2.0 * kind.leafletWidth, kind);
    else
        tendril(plate, from, degrees + bend, {.length = 14, .radius = 4.5});
}

} // namespace

void growLeaf(Plate& plate, Point p, double degrees, double size, double width, const LeafKind& kind,
              double bend) {
    const double stalk = kind.petiole * size;
    using Build = LeafKind::Build;
    switch (kind.build) {
    case Build::simple: {
        const Point base = polar(p, degrees - bend * 0.4, stalk);
        if (stalk > 2)
            tube(plate, {p, lerp(p, base, 0.5), base}, {std::min(1.2, 0.5 + size / 90), 0.9},
                 {.palette = kind.stalk, .spacing = 1.7});
        const Point tip = polar(base, degrees + bend, size - stalk);
        LeafForm form = bladeOf(kind, width);
        form.left = 0.88;
        leaf(plate, {base, polar(base, degrees - bend * 0.4, (size - stalk) * 0.5), tip}, form);
        break;
    }
    case Build::pinnate:
        growPinnate(plate, p, degrees, size, width, kind, bend);
        break;
    case Build::trifoliate:
    case Build::digitate: {
        const Point hub = polar(p, degrees, size * (kind.build == Build::trifoliate ? 0.45 : 0.4));
        tube(plate, {p, lerp(p, hub, 0.5), hub}, {1.1, 0.8}, {.palette = kind.stalk, .spacing = 1.7});
        const int n = kind.build == Build::trifoliate ? 3 : std::max(3, kind.leaflets);
        const double fan = n == 3 ? 144 : std::min(260.0, 40.0 * (n - 1));
        // From the outermost inwards, so that the middle leaflet lies on top.
        for (int k = 0; k < n; ++k) {
            const int from = k / 2;
            const double f = (k % 2 == 0 ? from : n - 1 - from) / static_cast<double>(n - 1) - 0.5;
            const double reach = size * 0.58 * (1 - 0.35 * std::fabs(f) * (n > 3 ? 1 : 0));
            const Point tip = polar(hub, degrees + f * fan, reach);
            leaf(plate, {hub, lerp(hub, tip, 0.5), tip},
                 bladeOf(kind, width * (n > 3 ? 1 - 0.3 * std::fabs(f) : 1)));
        }
        break;
    }
    case Build::palmate: {
        const Point base = polar(p, degrees - bend * 0.4, size * 0.35);
        tube(plate, {p, lerp(p, base, 0.5), base}, {1.2, 0.9}, {.palette = kind.stalk, .spacing = 1.7});
        palmateLeaf(plate, base, degrees + bend, size * 0.65,
                    {.lobes = kind.lobes,
                     .sinus = kind.sinus,
                     .teeth = kind.teeth,
                     .toothHeight = kind.toothHeight,
                     .palette = kind.palette,
                     .tone = kind.tone,
                     .bulge = kind.bulge});
        break;
    }
    case Build::frond:
        frond(plate, {p, polar(p, degrees - bend * 0.3, size * 0.5), polar(p, degrees + bend, size)},
              {.pairs = kind.leaflets * 2,
               .length = width * 1.8,
               .subdivided = kind.subdivided,
               .leafletWidth = kind.leafletWidth * 6,
               .palette = kind.palette,
               .rib = 1.1});
        break;
    }
}

} // namespace tambrelle::engraver
