#include "plates/engraver/botany/Gourd.h"

#include "plates/engraver/Relief.h"

namespace tambrelle::engraver {

using maths::smooth;

Point gourd(Plate& plate, Point c, const GourdForm& f) {
    struct Rib {
        double x, width;
    };
    std::vector<Rib> ribs;
    // Ribs at even angles round the fruit, seen from the side: the middle ones broad, the outer narrow.
    for (int k = 0; k < f.ribs; ++k) {
        const double a0 = maths::pi * (static_cast<double>(k) / f.ribs - 0.5),
                     a1 = maths::pi * ((k + 1.0) / f.ribs - 0.5);
        const double x0 = maths::sin(a0), x1 = maths::sin(a1);
        ribs.push_back({(x0 + x1) / 2, (x1 - x0) / 2});
    }
    std::stable_sort(ribs.begin(), ribs.end(),
                     [](const Rib& a, const Rib& b) { return std::fabs(a.x) > std::fabs(b.x); });
    const double w = f.width, h = f.height;
    const double deep = f.depth;
    for (const Rib& rib : ribs) {
        const double fall = rib.x * rib.x, half = rib.width * w * (1.22 + 0.12 * deep), x = rib.x * w * 0.97;
        const Point top = c + Point{rib.x * w * 0.30, -h * (0.84 - 0.30 * fall)},
                    foot = c + Point{rib.x * w * 0.55, h * (0.97 - 0.24 * fall)};
        const Path outline = closedSpline(
            {top, c + Point{x - half * 0.66, -h * (0.95 - 0.50 * fall)}, c + Point{x - half, -h * 0.12},
             c + Point{x - half * 0.84, h * 0.60}, foot + Point{-half * 0.3, h * 0.02},
             foot + Point{half * 0.3, h * 0.02}, c + Point{x + half * 0.84, h * 0.60},
             c + Point{x + half, -h * 0.12}, c + Point{x + half * 0.66, -h * (0.95 - 0.50 * fall)}},
            12);
        ReliefForm form{.palette = f.palette,
                        .bevel = 46,
                        .heightScale = 0.5 + 0.5 * deep,
                        .lines = {0.85, 0.10, 0.5},
                        .crossLines = {0.2, 0.9, 0.4},
                        .crossFrom = 0.74,
                        .spacing = 2.2,
                        .hatchFrom = 0.28,
                        .tone = 0.03 + 0.13 * rib.x,
                        .contour = 0.9,
                        .shade = 0.2,
                        .halo = 0.3};
        if (f.stripes)
            form.tint = [&f, x, half](Point p, double, double tone, Colour colour) {
                const double across =
                    std::fabs(p.x - x) / half + 0.07 * maths::sin(p.y * 0.5) + 0.05 * maths::sin(p.y * 1.3);
                return mix(colour, ramp(*f.stripes, tone * 0.82 + 0.05), smooth(0.62, 0.42, across));
            };
        const ReliefSurface s = relief(plate, outline, form);
        if (f.netted) {
            const Plate::Clip clip(plate, outline);
            for (int k = 0; k < 26; ++k) {
                const Point p = c + Point{x + half * plate.random.around(0.85), h * plate.random.around(0.9)};
                if (!s.covers(p))
                    continue;
                const Point q = p + Point{plate.random.around(7), plate.random.around(5)},
                            r = q + Point{plate.random.around(7), plate.random.around(7)};
                plate.stroke(spline({p, q, r}, 6), {.width = 1.3,
                                                    .swell = 0.3,
                                                    .fade = 0.3,
                                                    .wobble = 0.5,
                                                    .colour = palettes::straw.light});
                plate.stroke(spline({p + Point{0.5, 0.8}, q + Point{0.5, 0.8}, r + Point{0.5, 0.8}}, 6),
                             {.width = 0.5, .swell = 0.3, .fade = 0.3, .wobble = 0.5});
            }
        }
    }
    const Point foot = c + Point{0, -h * 0.80};
    if (f.stalk <= 0)
        return foot;
    const double s = f.stalkLean, k = f.stalk / 50, b = w / 96;
    const Path stalk =
        closedSpline({foot + Point{-18 * b, 2}, foot + Point{-9 * b, -6 * k},
                      foot + Point{-5 * b + 2 * s, -16 * k}, foot + Point{-4 * b + 9 * s, -34 * k},
                      foot + Point{-3 * b + 19 * s, -46 * k}, foot + Point{5 * b + 17 * s, -52 * k},
                      foot + Point{6 * b + 8 * s, -42 * k}, foot + Point{7 * b + 2 * s, -24 * k},
                      foot + Point{9 * b, -8 * k}, foot + Point{20 * b, 3}, foot + Point{2, 5}},
                     8);
    relief(plate, stalk,
           {.palette = f.stalkPalette, .bevel = 9 * b, .lines = {0.9, -0.2, 0.4}, .spacing = 1.9});
    const Point end = foot + Point{18 * s + 1, -49 * k};
    const Path cut = turned(ellipse(end, 5.6 * b, 3.8 * b, 24), s * -25, end);
    plate.knockOut(cut, {.halo = 0, .shade = 0});
    plate.flat(cut, palettes::straw, 0.2);
    plate.contour(cut, 0.8);
    return foot;
}

void longFruit(Plate& plate, const Path& spine, const LongFruitForm& f) {
    const Path s = tube(plate, spine, f.radius,
                        {.palette = f.palette,
                         .lines = Lines::across,
                         .spacing = 2.0,
                         .contour = 0.9,
                         .bow = 0.3,
                         .rough = f.warts > 0 ? 0.03 : 0,
                         .highlight = f.highlight});
    for (int k = 0; k < f.stripes; ++k) {
        const double x = (k + 0.5) / f.stripes * 1.7 - 0.85;
        Path line;
        for (int j = 0; j <= 30; ++j) {
            const double q = 0.06 + 0.88 * j / 30.0;
            line.push_back(along(s, q) + rightOf(direction(angleAlong(s, q))) * (x * f.radius(q)));
        }
        plate.stroke(line, {.width = 0.6, .swell = 0.2, .fade = 0.4});
    }
    for (int k = 0; k < f.warts; ++k) {
        const double q = plate.random.uniform(0.06, 0.94), x = plate.random.around(0.85);
        const Point p = along(s, q) + rightOf(direction(angleAlong(s, q))) * (x * f.radius(q));
        ball(plate, p, 1.7,
             {.palette = f.palette, .spacing = 1.3, .contour = 0.5, .shade = 0.3, .halo = 0.2});
    }
}

void wedge(Plate& plate, Point c, const WedgeForm& f) {
    // A crescent of rind below two straight sides of flesh.
    const double r = f.radius;
    const auto at = [&](double degrees, double share, double lift = 0) {
        return rotate(c + direction(degrees) * (r * share) + Point{0, lift}, f.turn, c);
    };
    const auto bow = [&](double share, double lift) {
        Path p;
        for (int k = 0; k <= 40; ++k)
            p.push_back(at(-4 + 188 * k / 40.0, share, lift));
        return p;
    };
    const Path outer = bow(1, 5), inner = bow(1 - f.rindWidth, 0);
    plate.knockOut(outer);
    plate.flat(outer, f.rind, 0.45);
    const Path body = bow(1, 0);
    plate.knockOut(body, {.halo = 0.2, .shade = 0});
    plate.flat(body, f.rind, 0.14);
    plate.contour(outer, 1.0);
    plate.contour(body, 0.6);
    relief(plate, inner,
           {.palette = f.flesh,
            .bevel = 10,
            .heightScale = 0.35,
            .lines = {0.1, 0.95, 0.3},
            .crossFrom = 1,
            .coverage = 0.35,
            .hatchFrom = 0.36,
            .tone = 0.04,
            .contour = 0.6,
            .shade = 0,
            .halo = 0.2});
    if (f.hollow) {
        const Path hole = closedSpline(
            {at(0, 0.42, -2), at(40, 0.46, 0), at(90, 0.42, 0), at(140, 0.46, 0), at(180, 0.42, -2)}, 10);
        relief(plate, hole,
               {.palette = f.flesh, .bevel = 6, .tone = 0.25, .contour = 0.7, .shade = 0, .halo = 0.2});
    }
    for (int k = 0; k < f.seeds; ++k) {
        const double a = 18 + 144 * (k + 0.5) / f.seeds, share = f.hollow ? 0.36 : (k % 2 == 0 ? 0.62 : 0.42);
        const Point p = at(a, share);
        leaflet(plate, p, at(a, share + 0.13),
                {.width = r * 0.035,
                 .palette = f.seed,
                 .shape = shapes::ovate,
                 .tone = 0.35,
                 .contour = 0.6,
                 .hatched = false,
                 .midrib = false,
                 .shade = 0.1});
    }
}

} // namespace tambrelle::engraver
