#include "plates/engraver/botany/Cryptogam.h"

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/botany/Leaf.h"

namespace tambrelle::engraver {

using maths::lerp;

void fern(Plate& plate, const Path& spine, const FernForm& f) {
    const Path s = spline(spine, 40);
    tube(plate, spine, {f.radius, f.radius * 0.7, f.radius * 0.3}, {.palette = f.stalk, .spacing = 2});
    const Profile reach{0.5, 0.85, 1, 0.95, 0.78, 0.5, 0.12};
    for (int k = 0; k < f.pinnae; ++k) {
        const double t = (k + 0.5) / f.pinnae, q = f.stalkShare + (1 - f.stalkShare) * t;
        const Point at = along(s, q);
        const double way = angleAlong(s, q), size = f.breadth * reach(t);
        for (const int side : {-1, 1}) {
            const double a = way + side * lerp(78, 48, t) + plate.random.around(3);
            const Point tip = polar(at, a, size), middle = polar(at, a - side * 4, size * 0.5);
            const double width = std::min(size * 0.22, 5.2) + 0.8;
            if (f.lobes == 0 || size < 9) {
                leaflet(plate, at, tip,
                        {.width = width * 0.62,
                         .palette = f.palette,
                         .shape = {0.8, 1, 0.9, 0.6, 0.1},
                         .contour = 0.45,
                         .hatched = size > 8});
                continue;
            }
            leaf(plate, {at, middle, polar(tip, a + 90 * side, -size * 0.03)},
                 {.width = width,
                  .shape = {0.75, 1, 0.95, 0.8, 0.55, 0.06},
                  .margin = lobed(std::max(4.0, f.lobes * size / f.breadth), 0.62),
                  .palette = f.palette,
                  .veins = std::max(4.0, f.lobes * size / f.breadth),
                  .slant = 0.10,
                  .tone = side < 0 ? 0 : 0.06,
                  .contour = 0.5,
                  .midrib = 0.6,
                  .spacing = 1.7,
                  .coverage = 0.36,
                  .shade = 0.16,
                  .halo = 0.4});
        }
    }
    leaflet(plate, along(s, 0.97), polar(s.back(), angleAlong(s, 1), 5),
            {.width = 1.6, .palette = f.palette});
}

void crozier(Plate& plate, Point foot, Point top, double radius, const Palette& palette) {
    const Point lean = top - foot;
    Path way = spline({foot, foot + lean * 0.5 + rightOf(lean) * 0.06, top}, 16);
    const double leave = angleAlong(way, 1);
    const int hand = lean.x < 0 ? -1 : 1;
    const Point centre = polar(top, leave + hand * 90, radius);
    for (int k = 1; k <= 44; ++k)
        way.push_back(
            polar(centre, leave - hand * 90 + hand * (k / 44.0 * 560), radius * (1 - 0.8 * k / 44.0)));
    tube(plate, way, {2.4, 2.8, 2.6, 2.0, 1.0}, {.palette = palette, .spacing = 1.6});
    for (int k = 0; k < 16; ++k) {
        const double q = 0.35 + 0.5 * k / 16;
        const Point at = along(way, q);
        const double a = angleAlong(way, q) - hand * 60;
        plate.stroke({at, polar(at, a, 3), polar(at, a + hand * 30, 5.5)},
                     {.width = 0.7, .swell = 0, .fade = 0.8});
    }
}

void mushroom(Plate& plate, Point foot, const MushroomForm& f) {
    const Point rim = foot - Point{0, f.stem};
    lathe(plate, foot, f.stem, {f.stemRadius * 1.2, f.stemRadius, f.stemRadius * 0.88, f.stemRadius * 0.92},
          {.tilt = 0.12, .palette = f.palette, .lines = Lines::along, .spacing = 1.9, .hatchFrom = 0.3});
    const double deep = f.cap * f.tilt;
    const Path under = ellipse(rim, f.cap, deep, 80);
    plate.knockOut(under);
    plate.flat(under, f.gills, 0.55);
    for (int k = 0; k < 90; ++k) {
        const Point d = direction(k * 4);
        plate.stroke({rim + Point{d.x * f.stemRadius * 0.9, d.y * deep * 0.25 - 1},
                      rim + Point{d.x * f.cap * 0.98, d.y * deep * 0.97}},
                     {.width = 0.6, .swell = 0.3, .fade = 0.1, .wobble = 0});
    }
    plate.contour(under, 0.8);
    // The stem again, where it meets the gills.
    tube(plate, {rim + Point{0, f.stem * 0.5}, rim + Point{0, deep * 0.3}, rim + Point{0, -deep * 0.05}},
         {f.stemRadius * 0.9, f.stemRadius * 0.95},
         {.palette = f.palette, .lines = Lines::along, .spacing = 1.9, .bow = -0.12, .shade = 0.1});
    if (f.ring) {
        const Point at = rim + Point{0, f.stem * 0.30};
        const Path skirt = closedSpline(
            {at + Point{-f.stemRadius * 1.0, -3}, at + Point{0, 1}, at + Point{f.stemRadius * 1.0, -3},
             at + Point{f.stemRadius * 1.5, 6}, at + Point{f.stemRadius * 0.4, 9},
             at + Point{-f.stemRadius * 0.5, 8}, at + Point{-f.stemRadius * 1.5, 6}},
            8);
        relief(
            plate, skirt,
            {.palette = f.palette, .bevel = 6, .lines = {0.9, 0.1, 0.4}, .spacing = 1.9, .hatchFrom = 0.3});
    }
    Path cap;
    for (int k = 0; k <= 60; ++k) {
        const Point d = direction(180 + 3 * k);
        cap.push_back(rim + Point{d.x * f.cap, d.y * f.capHeight * 1.0});
    }
    for (int k = 0; k <= 60; ++k) {
        const Point d = direction(-3 * k);
        cap.push_back(rim + Point{d.x * f.cap, d.y * deep * 0.55});
    }
    const Point o = rim;
    const double rx = f.cap, ry = f.capHeight;
    const ReliefSurface s =
        relief(plate, cap,
               {.palette = f.palette,
                .height =
                    [o, rx, ry](Point p, double) {
                        const double x = (p.x - o.x) / rx, y = (p.y - o.y) / ry * 0.82 + 0.10;
                        return rx * 0.85 * std::sqrt(std::max(0.02, 1 - x * x * 0.96 - y * y * 0.9));
                    },
                .lines = {0.1, 0.9, 0.45},
                .crossFrom = 0.7,
                .spacing = 2.2,
                .hatchFrom = 0.3});
    for (int k = 0; k < f.scales; ++k) {
        const Point p = rim + Point{plate.random.around(rx * 0.85), -plate.random.uniform(0.05, 0.95) * ry};
        if (!s.covers(p))
            continue;
        plate.stroke(spline({p, p + Point{2.5, -1}, p + Point{5, 0.4}}, 5),
                     {.width = 1.2, .swell = 0.4, .fade = 0.5, .colour = palettes::brown.dark});
    }
}

void mossCushion(Plate& plate, Point c, double width, double height, int capsules, const Palette& palette) {
    const Path dome = closedSpline({c + Point{-width, 0}, c + Point{-width * 0.8, -height * 0.6},
                                    c + Point{-width * 0.3, -height}, c + Point{width * 0.3, -height * 0.96},
                                    c + Point{width * 0.8, -height * 0.6}, c + Point{width, 0},
                                    c + Point{0, height * 0.12}},
                                   12);
    plate.knockOut(dome);
    plate.flat(dome, palette, 0.62);
    struct Shoot {
        Point foot;
        double x;
    };
    std::vector<Shoot> shoots;
    const int count = static_cast<int>(width * height / 22);
    while (static_cast<int>(shoots.size()) < count) {
        const Point p = c + Point{plate.random.around(width), -plate.random.uniform(-0.08, 1) * height};
        if (contains(dome, p))
            shoots.push_back({p, (p.x - c.x) / width});
    }
    std::stable_sort(shoots.begin(), shoots.end(),
                     [](const Shoot& a, const Shoot& b) { return a.foot.y < b.foot.y; });
    int left = capsules;
    for (std::size_t k = 0; k < shoots.size(); ++k) {
        const Shoot& s = shoots[k];
        if (left > 0 &&
            k % std::max<std::size_t>(1, shoots.size() / static_cast<std::size_t>(capsules + 1)) == 0) {
            --left;
            const Point top =
                s.foot + Point{plate.random.around(8) + s.x * 10, -height * plate.random.uniform(0.55, 0.8)};
            plate.stroke(spline({s.foot, engraver::lerp(s.foot, top, 0.6) + Point{2, 0}, top}, 8),
                         {.width = 1.1, .swell = 0, .fade = 0, .colour = palettes::brown.dark});
            ball(plate, top + Point{2, 1}, 3,
                 {.palette = palettes::autumn,
                  .direction = -50,
                  .squash = 1.7,
                  .spacing = 1.5,
                  .contour = 0.6});
            plate.stroke({top + Point{4, -2}, top + Point{7, -5}}, {.width = 0.9, .swell = 0, .fade = 0.8});
        }
        const double lean = -90 + s.x * 38 + plate.random.around(8), size = 12 + plate.random.around(2.5);
        const double shade =
            std::clamp(0.10 + 0.26 * s.x + 0.30 * (s.foot.y - c.y + height) / height, 0.0, 0.6);
        for (int j = 0; j < 5; ++j) {
            const Point at = polar(s.foot, lean, size * 0.2 * j);
            for (const int side : {-1, 1})
                leaflet(plate, at, polar(at, lean + side * (52 - 6 * j), 5.2),
                        {.width = 1.0,
                         .palette = palette,
                         .tone = shade + (side > 0 ? 0.08 : 0),
                         .contour = 0.34,
                         .hatched = false,
                         .midrib = false,
                         .shade = 0.06,
                         .halo = 0.1});
        }
    }
}

void lichenRosette(Plate& plate, Point c, double radius, const Palette& palette) {
    for (const double ring : {1.0, 0.74, 0.48, 0.24}) {
        const int n = std::max(5, static_cast<int>(18 * ring));
        for (int k = 0; k < n; ++k) {
            const double a = 360.0 * (k + 0.5 * ring) / n + plate.random.around(6),
                         reach = radius * ring * plate.random.uniform(0.88, 1.08);
            const Point base = polar(c, a, reach * 0.35), tip = polar(c, a, reach);
            const Point side = rightOf(direction(a)) * (radius * 0.16);
            const Path lobe =
                closedSpline({base - side * 0.5, engraver::lerp(base, tip, 0.55) - side, tip - side * 0.85,
                              polar(tip, a, -radius * 0.05), tip + side * 0.85,
                              engraver::lerp(base, tip, 0.55) + side, base + side * 0.5},
                             6);
            relief(plate, lobe,
                   {.palette = palette,
                    .bevel = 4,
                    .crossFrom = 1,
                    .spacing = 1.9,
                    .coverage = 0.35,
                    .hatchFrom = 0.3,
                    .contour = 0.6,
                    .shade = 0.22,
                    .halo = 0.3,
                    .occlusion = false});
        }
    }
    for (int k = 0; k < 5; ++k) {
        const Point p = c + Point{plate.random.around(radius * 0.45), plate.random.around(radius * 0.4)};
        const Path cup = ellipse(p, radius * 0.09, radius * 0.075, 20);
        plate.knockOut(cup, {.halo = 0.2, .shade = 0.2});
        plate.flat(cup, palettes::brown, 0.5);
        plate.contour(cup, {.width = 0.9, .lit = 0.7});
    }
}

} // namespace tambrelle::engraver
