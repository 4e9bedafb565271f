#include "plates/engraver/zoology/Bird.h"

#include "plates/engraver/Relief.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

namespace tambrelle::engraver {

Body::Style plumed(std::vector<Palette> palettes) {
    Body::Style s;
    s.palettes = std::move(palettes);
    s.cuts.normal = {0.25, 0.85, 0.45};
    s.cuts.spacing = 2.5;
    s.cuts.from = 0.36;
    s.cuts.coverage = 0.42;
    s.crossFrom = 0.76;
    return s;
}

Body::Style darkPlumed(std::vector<Palette> palettes) {
    Body::Style s = plumed(std::move(palettes));
    s.highlight = 0.02;
    s.ambient = 0.06;
    return s;
}

void feather(Plate& plate, Point root, Point tip, const FeatherForm& form) {
    leaflet(plate, root, tip,
            {.width = form.width,
             .palette = form.palette,
             .shape = {0.5, 0.85, 0.97, 1, 0.9, 0},
             .tone = form.tone,
             .contour = form.contour,
             .bend = form.bend});
}

void wing(Plate& plate, Point shoulder, const WingForm& form) {
    // Measured on a wing 120 units long and 44 deep.
    const double kx = form.length / 120, ky = form.depth / 44, k = std::min(kx, ky) * 1.04;
    const auto at = [&](double x, double y) {
        return rotate(shoulder + Point{x * kx, y * ky}, form.degrees - 8, shoulder);
    };
    for (int i = 0; i < 7; ++i)
        feather(plate, at(50, 12 + i * 3.0), at(120 - i * 6.0, 24 + i * 4.5),
                {.palette = form.primaries, .width = 5.6 * k, .tone = form.tone + 0.30});
    for (int i = 8; i >= 0; --i) {
        const std::optional<Palette> mark = form.marked ? form.marked(-1, i) : std::nullopt;
        feather(plate, at(24 - 2.0 * i, 14 + i * 3.4), at(88 - i * 7.0, 34 + i * 2.6),
                {.palette = mark.value_or(form.secondaries), .width = 6 * k, .tone = form.tone + 0.15});
    }
    constexpr int counts[] = {9, 9, 8, 7};
    constexpr double lengths[] = {24, 20, 17, 14}, starts[] = {40, 26, 14, 4},
                     widths[] = {5.6, 5.2, 4.8, 4.4};
    for (int r = 0; r < 4; ++r)
        for (int i = counts[r] - 1; i >= 0; --i) {
            const double x = starts[r] - i * 2.7 - 5, y = 1 + r + i * (4.9 - 0.3 * r);
            const std::optional<Palette> mark = form.marked ? form.marked(r, i) : std::nullopt;
            feather(plate, at(x, y), at(x + lengths[r] + 6, y + 4 + i * 0.8),
                    {.palette = mark.value_or(form.coverts),
                     .width = widths[r] * k,
                     .tone = form.tone + 0.05 + 0.025 * i});
        }
    // The bend of the wing before the smallest coverts.
    plate.stroke(spline({at(24, -4), at(6, -2), at(-6, 10), at(-7, 26), at(0, 40)}),
                 {.width = 0.9, .swell = 0.4, .fade = 0.5});
}

void tailFan(Plate& plate, Point root, const FanForm& f) {
    const int middle = (f.feathers - 1) / 2;
    for (int step = middle + 1; step >= 0; --step)
        for (const int side : {-1, 1}) {
            const int k = middle + side * step;
            if (k < 0 || k >= f.feathers || (step == 0 && side > 0))
                continue;
            const double q = f.feathers > 1 ? static_cast<double>(k) / (f.feathers - 1) : 0.5;
            const double angle = maths::lerp(f.from, f.to, q);
            const double size = f.length * (1 - 0.09 * std::fabs(q - 0.5) * 2);
            const Point tip = polar(root, angle, size);
            feather(plate, root, tip, {.palette = f.palette, .width = f.width, .tone = f.tone});
            const Point along = direction(angle), across = rightOf(along);
            for (int b = 0; b < f.bars; ++b) {
                const double u = 0.24 + 0.70 * (b + 0.5) / f.bars;
                const double half = f.width * 0.9 * std::min(1.0, (1 - u) * 5);
                const Point c = lerp(root, tip, u);
                plate.stroke(spline({c - across * half - along * 1.2, c + along * 1.4,
                                     c + across * half - along * 1.2},
                                    6),
                             {.width = std::min(2.4, size * 0.03),
                              .swell = 0.1,
                              .fade = 0.1,
                              .wobble = 0,
                              .colour = f.bar,
                              .alpha = 0.9});
            }
        }
}

void birdLeg(Plate& plate, Point top, Point foot, const BirdLegForm& f) {
    const TubeForm skin{.palette = f.palette, .spacing = 1.6, .tone = 0.04};
    const Point heel = lerp(top, foot, 0.5) + Point{f.bend, 0};
    tube(plate, {top, heel, foot}, {f.radius * 2.2, f.radius * 1.2, f.radius}, skin);
    const double t = f.toe;
    const Point toes[] = {{-t, 0.32 * t}, {-0.34 * t, 0.46 * t}, {0.34 * t, 0.32 * t}};
    if (f.webbed) {
        const Path web = closedSpline({foot + Point{4, -1}, foot + Point{-0.3 * t, 0}, foot + toes[0],
                                       foot + Point{-0.62 * t, 0.34 * t}, foot + toes[1],
                                       foot + Point{0.05 * t, 0.36 * t}, foot + toes[2], foot + Point{5, 1}},
                                      6);
        plate.knockOut(web, {.halo = 0.3, .shade = 0.15});
        plate.flat(web, f.palette, 0.4);
        plate.contour(web, 0.8);
        for (const Point& toe : toes)
            plate.stroke({foot, foot + toe * 0.55 + Point{1, -0.4}, foot + toe},
                         {.width = 0.8, .swell = 0.1, .fade = 0.3});
        return;
    }
    for (const Point& toe : {Point{0.42 * t, 0.02 * t}, toes[2], toes[0], toes[1]}) {
        tube(plate, {foot + Point{0, -0.5}, foot + Point{toe.x * 0.5, toe.y * 0.42}, foot + toe},
             {f.radius * 0.92, f.radius * 0.75, f.radius * 0.35}, skin);
        plate.stroke({foot + toe * 0.92, foot + toe * 1.12 + Point{0, 0.6}},
                     {.width = f.radius * 0.5, .swell = 0, .fade = 0.8});
    }
}

void bill(Plate& plate, const Path& outline, const Path& gape, std::optional<Point> nostril,
          const BillForm& f) {
    ReliefForm horn;
    horn.palette = f.palette;
    horn.bevel = 5;
    horn.spacing = 1.8;
    horn.tone = f.tone;
    horn.shade = 0.15;
    relief(plate, closedSpline(outline, 6), horn);
    plate.stroke(spline(gape, 6), {.width = 0.85, .swell = 0.15, .fade = 0.3, .wobble = 0.05});
    if (nostril)
        plate.stroke({*nostril + Point{-1.3, 0.3}, *nostril + Point{1.3, -0.2}},
                     Pen{.width = 1.0, .wobble = 0});
}

void birdEye(Plate& plate, Point centre, double radius, Colour iris) {
    eye(plate, centre, {.radius = radius, .iris = iris, .pupilSize = 0.66, .lid = 0});
}

} // namespace tambrelle::engraver
