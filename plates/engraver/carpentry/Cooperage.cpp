#include "plates/engraver/carpentry/Cooperage.h"

#include "plates/engraver/Face.h"

namespace tambrelle::engraver {

using maths::clamp01;

namespace {

constexpr double turn = 360;

void joints(Plate& plate, const LatheSurface& s, int staves) {
    const Plate::Clip clip(plate, s.outline);
    const auto line = [&](double degrees, double from, double to, const Pen& pen) {
        Path path;
        constexpr std::size_t n = 14;
        for (std::size_t k = 0; k < n; ++k)
            path.push_back(s.at(maths::lerp(from, to, fraction(k, n)), degrees));
        plate.stroke(path, pen);
    };
    for (int k = 0; k < staves; ++k) {
        const double degrees = (k + 0.3) / staves * turn;
        if (s.facing(0.5, degrees) < 0.03)
            continue;
        const double weight = 0.6 + 0.45 * s.toneAt(0.5, degrees);
        line(degrees, 0, 1, {.width = 0.75 * weight, .swell = 0, .fade = 0});
        if (plate.random.chance(0.8)) { // a fibre of the grain
            const double a = plate.random.uniform(0.05, 0.5), b = plate.random.uniform(0.55, 0.95);
            line(degrees + plate.random.uniform(0.25, 0.8) / staves * turn, a, b,
                 {.width = 0.4, .swell = 0.4, .fade = 0.4, .wobble = 0.3});
        }
    }
}

} // namespace

LatheSurface cask(Plate& plate, Point base, double height, const Profile& radius, const CaskForm& form) {
    LatheForm wood;
    wood.direction = form.direction;
    wood.tilt = form.tilt;
    wood.palette = form.palette;
    wood.lines = Lines::along;
    wood.spacing = 1.8;
    const int staves = form.staves;
    wood.texture = [staves](double, double angle, double tone) {
        const double stave = std::floor(angle / (2 * maths::pi) * staves - 0.3);
        return tone + 0.06 * maths::sin(stave * 12.9898);
    };
    const double flat = std::sqrt(1 - form.tilt * form.tilt);
    LatheSurface s = lathe(plate, base, height / flat, radius, wood);
    joints(plate, s, staves);
    for (const double u : form.hoops)
        hoop(plate, s, u, {.breadth = form.hoopBreadth, .palette = form.hoopPalette});
    return s;
}

void hoop(Plate& plate, const LatheSurface& s, double u, const HoopForm& form) {
    constexpr std::size_t m = 5, n = 60;
    constexpr double reach = 2, proud = 1.1;
    const double half = form.breadth / s.length / 2;
    Patch patch(m, n);
    for (std::size_t i = 0; i < m; ++i)
        for (std::size_t j = 0; j < n; ++j) {
            const double at = maths::lerp(u - half, u + half, fraction(i, m));
            const double degrees = maths::lerp(-reach, turn / 2 + reach, fraction(j, n));
            patch.point(i, j) = s.at(at, degrees, proud);
            patch.tone(i, j) = s.toneAt(u, degrees);
        }
    const Path outline = band(patch.row(0), patch.row(static_cast<double>(m - 1)));
    plate.knockOut(outline, {.halo = 0.2, .shade = 0.35, .offset = {0.6, 2.2}});
    plate.flat(outline, form.palette, 0.4);
    plate.wash(patch, form.palette, 0.9);
    plate.hatch(patch, {.spacing = 1.5, .from = 0.3});
    plate.contour(outline, 0.75);
    if (form.rivets)
        for (const double degrees : {62.0, 122.0})
            plate.dot(s.at(u, degrees, proud), 0.9);
}

void caskHead(Plate& plate, const LatheSurface& s, const HeadForm& form) {
    const Path rim = s.ring(1), opening = s.ring(1, 0, turn, -form.chime);
    plate.knockOut(rim, {.halo = 0, .shade = 0});
    plate.flat(rim, form.palette, 0.12);
    plate.contour(rim, 0.85);
    face(plate, opening,
         {.tone = form.tone + 0.3, .palette = form.palette, .lines = form.degrees, .contour = 0});
    const Path head = s.ring(0.975, 0, turn, -form.chime);
    const Plate::Clip clip(plate, opening);
    face(plate, head,
         {.tone = form.tone,
          .palette = form.palette,
          .lines = form.degrees,
          .gradient = 0.12,
          .grain = 0.13,
          .halo = 0});
    const Point d = direction(form.degrees), n = rightOf(d), c = centroid(head);
    const Bounds b = boundsOf(head);
    const double radius = std::max(b.right - b.left, b.bottom - b.top) / 2;
    double reach = 0;
    for (const Point p : head)
        reach = std::max(reach, std::fabs(dot(p - c, n)));
    for (int k = 1; k < form.boards; ++k) {
        const Point at = c + n * (reach * (2.0 * k / form.boards - 1));
        plate.stroke({at - d * radius, at + d * radius}, {.width = 0.85, .swell = 0, .fade = 0});
    }
    plate.contour(opening, 0.9);
}

} // namespace tambrelle::engraver
