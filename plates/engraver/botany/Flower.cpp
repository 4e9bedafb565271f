#include "plates/engraver/botany/Flower.h"

#include "plates/engraver/Light.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Leaf.h"

namespace tambrelle::engraver {

using maths::pi;
using maths::smooth;

namespace {

constexpr double goldenAngle = 137.50776;

Point flattened(double angle, double radius, double squash) {
    const Point d = direction(angle);
    return {d.x * radius, d.y * radius * squash};
}

// A small dome of dots: the eye of a flower, the disc of a daisy.
void eyeOf(Plate& plate, Point centre, double radius, double squash, const Palette& palette, int dots) {
    const Path rim = ellipse(centre, radius, radius * squash, 30);
    plate.knockOut(rim, {.halo = 0.2, .shade = 0.2});
    plate.flat(rim, palette, 0.42);
    for (int k = 0; k < dots; ++k) {
        const double q = std::sqrt((k + 0.5) / dots);
        plate.dot(centre + flattened(k * goldenAngle, radius * 0.9 * q, squash), 0.3 + 0.1 * radius / 5,
                  sepia, 0.5 + 0.5 * q);
    }
    plate.contour(rim, 0.45);
}

} // namespace

void flower(Plate& plate, Point at, double degrees, const FlowerForm& f, double s) {
    const Point axis = direction(degrees);
    const double side = maths::cos(maths::radians(f.tilt)); // how much of the axis lies in the plate
    const double roll = f.roll ? *f.roll : plate.random.uniform(0, 360.0 / std::max(f.petals, 1));
    const double squash = 0.3 + 0.7 * std::fabs(maths::sin(maths::radians(f.tilt)));
    if (f.sepals > 0) {
        const Frame frame(at, f.tilt, degrees);
        for (int k = 0; k < f.sepals; ++k) {
            const double a = roll + 360.0 * (k + 0.5) / f.sepals, r = f.length * s * 0.75;
            const Point d = direction(a);
            const double lean = maths::radians(std::min(f.baseAngle + 25, 100.0));
            leaflet(
                plate, at,
                frame.onPlate({d.x * r * maths::sin(lean), d.y * r * maths::sin(lean), r * maths::cos(lean)}),
                {.width = f.length * s * 0.11, .hatched = false});
        }
    }
    if (f.spur > 0)
        tube(plate, {at, at - axis * (f.spur * 0.6 * s), at - direction(degrees - 30) * (f.spur * s)},
             {2.4 * s, 1.7 * s, 0.9 * s}, {.palette = f.palette, .spacing = 1.5});
    if (f.tube > 0 && side > 0.2)
        tube(plate, {at - axis * (f.tube * s * side), at - axis * (f.tube * s * side * 0.5), at},
             {f.tubeRadius * s * 0.7, f.tubeRadius * s, f.tubeRadius * s * 1.2},
             {.palette = f.palette, .lines = Lines::along, .spacing = 1.5});
    Sheets sheets;
    const Frame frame(at, f.tilt, degrees);
    std::vector<Sheets::Style::Tint> tints;
    for (int ring = 0; ring < f.rings; ++ring)
        for (int k = 0; k < f.petals; ++k) {
            const double share = (f.lengthOf ? f.lengthOf(k) : 1) * (1 - 0.07 * ring);
            Petal p{.length = f.length * s * share,
                    .width = f.width * s * share,
                    .baseAngle = f.baseAngle - 8 * ring,
                    .tipAngle = f.tipAngle - 10 * ring,
                    .shape = f.shape,
                    .cup = f.cup,
                    .curl = f.curl,
                    .notch = f.notch,
                    .ruffle = f.ruffle * s,
                    .ruffleTurns = f.ruffleTurns,
                    .radius = f.tube > 0 ? f.tubeRadius * s * 0.6 : 0.8 * s,
                    .tone = f.marking,
                    .rows = f.length * s > 30 ? 30 : 18,
                    .columns = f.length * s > 30 ? 23 : 13};
            if (f.paletteOf) {
                p.palette = static_cast<int>(tints.size());
                tints.emplace_back(f.paletteOf(k));
            }
            sheets.petal(frame, roll + 360.0 * k / f.petals + 180.0 * ring / f.petals, p, plate.random);
        }
    if (tints.empty()) {
        if (f.tips)
            tints.emplace_back(f.palette, *f.tips);
        else
            tints.emplace_back(f.palette);
    }
    sheets.engrave(plate, {.palettes = tints,
                           .spacing = f.length * s > 30 ? 1.8 : 1.5,
                           .contour = f.length * s > 30 ? 0.7 : 0.6,
                           .edge = f.length * s > 30 ? 1.3 : 1.1,
                           .washLift = f.washLift,
                           .ambient = f.ambient,
                           .highlight = 0.06});
    const Point middle = frame.onPlate({0, 0, 1.5 * s});
    if (f.eye > 0)
        eyeOf(plate, middle, f.eye * s, squash, f.eyePalette, static_cast<int>(4 + f.eye * s * 2));
    for (int k = 0; k < f.stamens; ++k) {
        const double q = std::sqrt((k + 0.5) / f.stamens);
        const Point d = direction(k * goldenAngle);
        const double reach = f.length * s * f.stamenLength;
        const Point end = frame.onPlate({d.x * reach * 0.66 * q, d.y * reach * 0.66 * q, reach * 1.0});
        plate.stroke({middle, lerp(middle, end, 0.5), end},
                     {.width = 0.4, .swell = 0, .fade = 0, .wobble = 0});
        const double r = 0.95 * std::sqrt(s) * std::clamp(f.length / 18, 0.8, 1.6);
        const Path anther = ellipse(end, r, r * 0.8, 10);
        plate.knockOut(anther, {.halo = 0, .shade = 0});
        plate.flat(anther, f.antherPalette, 0.55);
        plate.contour(anther, {.width = 0.35, .wobble = 0});
    }
}

void bell(Plate& plate, Point at, double degrees, const BellForm& f, double s) {
    Sheets sheets;
    sheets.cup(Frame(at, f.tilt, degrees), {.length = f.length * s,
                                            .radius = f.radius * s,
                                            .shape = f.shape,
                                            .lobes = f.lobes,
                                            .lobeDepth = f.lobeDepth});
    sheets.engrave(plate, {.palettes = {f.palette}, .spacing = 1.5, .contour = 0.6, .highlight = 0.06});
    for (int k = 0; k < f.sepals; ++k) {
        const double a = degrees + (k - (f.sepals - 1) / 2.0) * 70.0 / std::max(f.sepals - 1, 1);
        leaflet(plate, at - direction(degrees) * 1.0, polar(at, a, f.length * s * 0.38),
                {.width = 1.4 * s, .hatched = false});
    }
}

namespace {
// A flat petal for small flowers: fans its lines from the base.
void smallPetal(Plate& plate, Point base, Point tip, double width, const Palette& palette,
                const Profile& shape, double bend, double tone) {
    const Point side = rightOf(unit(tip - base));
    constexpr std::size_t n = 20;
    const Path s = resample(spline({base, lerp(base, tip, 0.5) + side * bend, tip}), n);
    const Path normal = normals(s);
    Path right, left;
    for (std::size_t i = 0; i < n; ++i) {
        const double w = shape(fraction(i, n)) * width;
        right.push_back(s[i] + normal[i] * w);
        left.push_back(s[i] - normal[i] * w);
    }
    const Path outline = band(right, left);
    plate.knockOut(outline, {.halo = 0.4, .shade = 0.2});
    Patch patch(9, n);
    for (std::size_t i = 0; i < 9; ++i)
        for (std::size_t j = 0; j < n; ++j) {
            const double v = fraction(i, 9), u = fraction(j, n);
            patch.point(i, j) = lerp(left[j], right[j], v);
            patch.tone(i, j) =
                maths::clamp01(0.55 - 0.40 * smooth(0, 0.75, u) + tone +
                               0.16 * (v * 2 - 1) * (dot(normal[n / 2], shadeSide) > 0 ? 1 : -1));
        }
    plate.wash(patch, palette, 0.78, 0.06, 0.08);
    plate.hatch(patch, {.spacing = 1.4, .coverage = 0.42, .from = 0.2, .widest = 0.6});
    plate.contour(outline, 0.55);
}
} // namespace

void lipFlower(Plate& plate, Point c, double degrees, double size, const Palette& palette, int side) {
    const Point mouth = polar(c, degrees, size * 0.5);
    tube(plate, {c, mouth}, {size * 0.12, size * 0.21},
         {.palette = palette, .lines = Lines::along, .spacing = 1.5, .contour = 0.5, .shade = 0.2});
    smallPetal(plate, mouth, polar(mouth, degrees - side * 25, size * 0.6), size * 0.22, palette,
               shapes::elliptic, -side * size * 0.16, 0.1);
    smallPetal(plate, mouth, polar(mouth, degrees + side * 62, size * 0.56), size * 0.28, palette,
               shapes::obovate, 0, 0);
    leaflet(plate, polar(c, degrees + 180, size * 0.05), polar(c, degrees, size * 0.36),
            {.width = size * 0.17, .shape = shapes::elliptic, .hatched = false});
}

void floret(Plate& plate, Point p, double radius, const Palette& palette, int petals, Colour centre) {
    const double turn = plate.random.uniform(0, 360.0 / petals);
    Path outline;
    const int steps = petals * 6;
    for (int k = 0; k < steps; ++k) {
        const double a = turn + 360.0 * k / steps;
        const double lobe = std::fabs(maths::cos(maths::radians((a - turn) * petals / 2)));
        outline.push_back(p + flattened(a, radius * (0.62 + 0.48 * lobe), 0.9));
    }
    plate.knockOut(outline, {.halo = 0.15, .shade = 0.14});
    plate.flat(outline, palette, 0.26);
    plate.contour(outline, {.width = 0.4, .wobble = 0});
    const Path eye = ellipse(p, radius * 0.28, radius * 0.26, 10);
    plate.flat(eye, centre);
    if (radius > 1.6)
        plate.contour(eye, {.width = 0.28, .wobble = 0});
}

void compositeHead(Plate& plate, Point at, double degrees, const CompositeForm& f, double s) {
    const Frame frame(at, f.tilt, degrees);
    const double squash = std::max(0.25, std::fabs(maths::sin(maths::radians(f.tilt))));
    if (f.involucre > 0 && f.tilt < 80) {
        const double r = f.involucre * s;
        const Point axis = direction(degrees), side = rightOf(axis);
        for (int k = 0; k < 7; ++k) {
            const double x = (k - 3) / 3.0;
            const Point base =
                at - axis * (r * 0.9 * maths::cos(maths::radians(f.tilt))) + side * (r * 0.6 * x);
            leaflet(plate, base, base + axis * (r * 1.25) + side * (r * 0.55 * x),
                    {.width = r * 0.24, .hatched = false});
        }
    }
    Sheets sheets;
    const bool allRays = f.disc <= 0;
    const int rings = allRays ? std::max(f.rings, 3) : f.rings;
    for (int ring = 0; ring < rings; ++ring) {
        // Without a disc, the inner rays are shorter and stand up.
        const double q = allRays ? ring / static_cast<double>(rings) : 0;
        const int count = allRays ? static_cast<int>(f.rays * (1 - 0.6 * q)) : f.rays;
        for (int k = 0; k < count; ++k)
            sheets.petal(frame, 360.0 * k / count + ring * 180.0 / count + plate.random.around(2.5),
                         {.length = f.length * s * (1 - (allRays ? 0.6 * q : 0.1 * ring)) *
                                    plate.random.uniform(0.94, 1.04),
                          .width = f.width * s * (1 - 0.3 * q),
                          .baseAngle = f.baseAngle - 58 * q - 4 * ring,
                          .tipAngle = f.tipAngle - 66 * q - 4 * ring,
                          .shape = f.shape,
                          .cup = 2,
                          .notch = f.notch,
                          .radius = std::max(f.disc * 0.7, 1.0) * s,
                          .rows = 12,
                          .columns = 7},
                         plate.random);
    }
    sheets.engrave(plate, {.palettes = {f.tips ? Sheets::Style::Tint(f.palette, *f.tips)
                                               : Sheets::Style::Tint(f.palette)},
                           .spacing = 1.4,
                           .contour = 0.5,
                           .edge = 0.9,
                           .washLift = f.washLift,
                           .ambient = -0.05,
                           .occlusion = 0.6});
    if (allRays)
        return;
    const double r = f.disc * s;
    const Point up = direction(degrees) * maths::cos(maths::radians(f.tilt));
    const Path rim = ellipse(at + up * (r * 0.2), r, r * (squash + 0.25 * f.dome), 40);
    plate.knockOut(rim, {.halo = 0.4, .shade = 0.3});
    plate.flat(rim, f.discPalette, 0.5);
    const int count = static_cast<int>(std::clamp(r * r * 1.1, 12.0, 240.0));
    plate.castShadows(false);
    for (int k = count - 1; k >= 0; --k) {
        const double q = std::sqrt((k + 0.5) / count), a = k * goldenAngle;
        const Point p = at + up * (r * 0.2) + flattened(a, r * q, squash) + up * (f.dome * r * (1 - q * q));
        const Point d = direction(a);
        const double tone =
            std::clamp(0.32 + 0.35 * (d.x * 0.6 + d.y * 0.8) * q + 0.2 * (q > 0.85 ? 1 : 0), 0.0, 1.0);
        const double size = std::max(0.55, r * 0.062) * (0.75 + 0.5 * q);
        const Path dot = ellipse(p, size, size * (0.5 + 0.5 * squash), 9);
        plate.flat(dot, f.discPalette, tone);
        plate.stroke(arc(p, size, size * (0.5 + 0.5 * squash), -30, 130, 8),
                     {.width = 0.32 + 0.45 * tone, .swell = 0.2, .fade = 0.2, .wobble = 0});
    }
    plate.castShadows(true);
    plate.contour(rim, 0.5);
}

void scales(Plate& plate, Point at, double degrees, const ScalesForm& f, double s) {
    const Point axis = direction(degrees), side = rightOf(axis);
    const double radius = f.radius * s, size = f.length * s;
    const double reach = f.scaleLength > 0 ? f.scaleLength * s : size / f.rows * 2.1;
    const double breadth = f.scaleWidth > 0 ? f.scaleWidth * s : radius * 2.2 / f.perRow;
    for (int j = 0; j < f.rows; ++j) {
        const double t = f.tipFirst ? 1 - (j + 0.5) / f.rows : (j + 0.5) / f.rows;
        const double r = f.shape(t) * radius;
        std::vector<double> places;
        for (int k = 0; k < f.perRow; ++k) {
            const double angle = (k + 0.5 * (j % 2) - (f.perRow - 1) / 2.0) / (f.perRow / 2.0) * 1.45;
            if (std::fabs(angle) <= 1.5)
                places.push_back(angle);
        }
        std::sort(places.begin(), places.end(), [](double a, double b) {
            return std::fabs(a) > std::fabs(b) || (std::fabs(a) == std::fabs(b) && a < b);
        });
        for (const double angle : places) {
            const double x = maths::sin(angle), front = maths::cos(angle);
            const Point base = at + axis * (size * t - (f.tipFirst ? 0 : reach * 0.3)) + side * (r * x * 0.9);
            const double way = degrees + x * f.spread;
            const Point tip = polar(base, way, reach * (0.72 + 0.28 * front));
            const double shadow = 0.30 * std::max(0.0, dot(side * x, {0.6, 0.75})) + 0.1 * (1 - t);
            leaflet(plate, base, tip,
                    {.width = breadth * (0.45 + 0.55 * front),
                     .palette = f.palette,
                     .shape = f.scaleShape,
                     .tone = f.tone + shadow,
                     .contour = 0.5,
                     .hatched = reach > 7});
            if (f.spines)
                plate.stroke({tip, polar(tip, way, reach * 0.14), polar(tip, way, reach * 0.28)},
                             {.width = 0.7, .swell = 0, .fade = 0.8, .wobble = 0});
        }
    }
}

void thistleHead(Plate& plate, Point at, double degrees, const ThistleForm& f, double s) {
    const Point axis = direction(degrees), side = rightOf(axis);
    const Point mouth = at + axis * (f.length * s * 0.78);
    for (int layer = 0; layer < 3; ++layer) {
        const int n = 13 - layer * 3;
        for (int k = 0; k < n; ++k) {
            const double x = (k - (n - 1) / 2.0) / ((n - 1) / 2.0);
            const Point base = mouth + side * (x * f.radius * s * 0.55);
            const double a = degrees + x * f.brushSpread / 2 * (1 - layer * 0.2) + plate.random.around(4);
            leaflet(plate, base,
                    polar(base, a, f.brush * s * (0.95 - 0.15 * layer) * plate.random.uniform(0.9, 1.08)),
                    {.width = 1.3 * s,
                     .palette = f.palette,
                     .shape = {0.4, 0.5, 0.7, 1, 0.8, 0},
                     .tone = 0.2 + 0.1 * layer,
                     .contour = 0.4,
                     .hatched = false,
                     .shade = 0.1,
                     .halo = 0.15});
        }
    }
    scales(plate, at, degrees,
           {.radius = f.radius,
            .length = f.length * 0.85,
            .shape = {0.6, 1, 1.02, 0.85, 0.68},
            .rows = 6,
            .perRow = 7,
            .palette = f.scalePalette,
            .spines = f.spines},
           s);
}

void globeHead(Plate& plate, Point at, double degrees, const GlobeForm& f, double s) {
    const double r = f.radius * s;
    const Point centre = at + direction(degrees) * (r * 0.82 * f.squash);
    struct Place {
        Point p;
        Vector3 n;
    };
    std::vector<Place> places;
    for (int k = 0; k < f.count; ++k) {
        const double z = 1 - (k + 0.5) / f.count * 1.15, a = k * goldenAngle;
        const double q = std::sqrt(std::max(0.0, 1 - z * z));
        const Point d = direction(a);
        places.push_back({centre + Point{d.x * q * r, d.y * q * r * f.squash}, {d.x * q, d.y * q, z}});
    }
    std::sort(places.begin(), places.end(), [](const Place& a, const Place& b) { return a.n.z < b.n.z; });
    plate.flat(ellipse(centre, r * 0.9, r * 0.9 * f.squash, 40), f.palette, 0.6);
    for (const Place& place : places) {
        const Point out = unit(Point{place.n.x, place.n.y * f.squash} + Point{0, -0.05});
        const double flat = maths::length(place.n.x, place.n.y);
        const double tone = std::clamp(toneOf(place.n) * 0.55 + f.tone - 0.1, 0.0, 0.6);
        if (f.stars) {
            floret(plate, place.p + out * (f.petal * s * 0.4 * flat), f.petal * s * 0.42, f.palette, 6,
                   f.palette.dark);
            continue;
        }
        const double reach = f.petal * s * (0.45 + 0.55 * flat);
        leaflet(plate, place.p - out * (reach * 0.4), place.p + out * (reach * 0.6),
                {.width = f.petalWidth * s * (1.15 - 0.3 * flat),
                 .palette = f.palette,
                 .shape = {0.6, 0.9, 1, 0.95, 0.7, 0},
                 .tone = tone,
                 .contour = 0.42,
                 .hatched = false,
                 .shade = 0.14,
                 .halo = 0.15});
    }
}

} // namespace tambrelle::engraver
