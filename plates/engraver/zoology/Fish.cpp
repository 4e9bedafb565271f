#include "plates/engraver/zoology/Fish.h"

#include "plates/engraver/Patch.h"

namespace tambrelle::engraver {

using maths::clamp01;
using maths::smooth;

Fish::Fish(const Path& spine, const Profile& back, const Profile& belly)
    : spine_(resample(spline(spine), count)),
      normals_(engraver::normals(spine_)),
      back_(back),
      belly_(belly),
      length_(arcLength(spine_)) {
    // The normal points to the back: up on the plate for a fish that looks left.
    for (Point& n : normals_)
        n = n * -1;
}

Point Fish::at(double x, double y) const {
    const double q = x / length_ * (count - 1);
    const auto i = std::min(static_cast<std::size_t>(std::max(q, 0.0)), count - 2);
    const double f = q - static_cast<double>(i); // beyond the ends it goes on straight
    const Point on = lerp(spine_[i], spine_[i + 1], f);
    const Point n = unit(lerp(normals_[i], normals_[i + 1], clamp01(f)));
    return on + n * -y;
}

Path Fish::path(const Path& onFish) const {
    Path out;
    for (const Point& p : onFish)
        out.push_back(at(p.x, p.y));
    return out;
}

Path Fish::outline() const {
    Path back, belly;
    for (std::size_t i = 0; i < count; ++i) {
        const double x = fraction(i, count) * length_;
        back.push_back(at(x, -back_(fraction(i, count))));
        belly.push_back(at(x, belly_(fraction(i, count))));
    }
    return band(back, belly);
}

Point Fish::locate(Point p) const {
    std::size_t best = 0;
    double nearest = 1e18;
    for (std::size_t i = 0; i < count; ++i) {
        const Point d = p - spine_[i];
        if (dot(d, d) < nearest) {
            nearest = dot(d, d);
            best = i;
        }
    }
    const double q = fraction(best, count), y = -dot(p - spine_[best], normals_[best]);
    return {q * length_, clamp01((y + back_(q)) / std::max(back_(q) + belly_(q), 1e-6))};
}

ReliefSurface Fish::engrave(Plate& plate, const Skin& skin) const {
    ReliefForm form;
    form.palette = skin.flank;
    form.bevel = 52;
    form.heightScale = 0.62;
    form.lines = {0.15, 0.9, 0.4};
    form.spacing = 2.4;
    form.hatchFrom = skin.hatchFrom;
    form.coverage = skin.coverage;
    form.crossFrom = 0.75;
    form.contour = 1.0;
    form.tint = [this, skin](Point p, double, double tone, Colour c) {
        const double v = locate(p).y;
        const double dark = smooth(skin.backTo + 0.16, skin.backTo - 0.10, v);
        const double pale = smooth(skin.bellyFrom - 0.12, skin.bellyFrom + 0.14, v);
        c = mix(c, ramp(skin.back, tone * 0.7 + 0.16, skin.highlight), dark);
        return mix(c, ramp(skin.belly, tone * 0.7, skin.highlight), pale);
    };
    return relief(plate, outline(), form);
}

void Fish::scales(Plate& plate, const ReliefSurface& skin, double from, double to, double size,
                  double weight) const {
    const Plate::Clip clip(plate, outline());
    int row = 0;
    const double deepest = back_.greatest() + belly_.greatest();
    const int rows = static_cast<int>(deepest / (size * 1.02)) + 1;
    for (int j = 0; j <= rows; ++j, ++row) {
        const double v = (j + 0.5) / (rows + 1);
        for (double x = from + (row % 2) * size * 0.5; x < to; x += size) {
            const double height = backAt(x) + bellyAt(x), local = height / (rows + 1) * 0.56;
            const double y = -backAt(x) + v * height;
            const Point p = at(x, y);
            const double tone = skin.toneAt(p).value_or(0.5);
            // The rim of a scale, open towards the head.
            Path rim;
            for (int k = 0; k <= 8; ++k) {
                const double a = maths::radians(-78 + 156 * k / 8.0);
                rim.push_back(
                    at(x - size * 0.42 + size * 0.62 * maths::cos(a), y + local * 1.05 * maths::sin(a)));
            }
            plate.stroke(rim,
                         {.width = weight * (0.42 + 0.62 * tone), .swell = 0.3, .fade = 0.3, .wobble = 0});
            if (tone > 0.34 && size > 4.5)
                for (const double off : {-0.35, 0.25})
                    plate.stroke({at(x - size * 0.42, y + local * off),
                                  at(x - size * 0.14, y + local * off * 0.9),
                                  at(x + size * 0.06, y + local * off * 0.8)},
                                 {.width = 0.36 * weight, .swell = 0.5, .fade = 0.3, .wobble = 0});
        }
    }
}

void Fish::gillCover(Plate& plate, double x) const {
    const Plate::Clip clip(plate, outline());
    const double b = backAt(x), e = bellyAt(x), s = 0.16 * (b + e);
    plate.stroke(spline(path({{x - 0.9 * s, -0.72 * b},
                              {x + 0.25 * s, -0.35 * b},
                              {x + 0.5 * s, 0.1 * e},
                              {x - 0.1 * s, 0.55 * e},
                              {x - 1.6 * s, 0.86 * e},
                              {x - 2.9 * s, 0.80 * bellyAt(x - 3 * s)}}),
                        8),
                 {.width = 1.3, .swell = 0.2, .fade = 0.25, .wobble = 0.05});
    plate.stroke(spline(path({{x - 1.3 * s, -0.45 * b},
                              {x - 0.75 * s, -0.1 * b},
                              {x - 0.9 * s, 0.35 * e},
                              {x - 2.0 * s, 0.62 * e}}),
                        8),
                 {.width = 0.75, .swell = 0.3, .fade = 0.4, .wobble = 0.05});
    for (int k = 0; k < 7; ++k) {
        const double q = k / 6.0;
        plate.stroke(path({{x - 0.62 * s - 0.6 * s * q * q, (-0.30 + 0.75 * q) * b},
                           {x - 0.25 * s - 0.5 * s * q * q, (-0.31 + 0.80 * q) * b},
                           {x + 0.1 * s - 0.6 * s * q * q, (-0.33 + 0.86 * q) * b}}),
                     {.width = 0.45, .swell = 0.4, .fade = 0.5, .wobble = 0.05});
    }
}

void Fish::lateralLine(Plate& plate, double from, double height) const {
    Path line;
    for (int k = 0; k <= 40; ++k) {
        const double x = maths::lerp(from, length_, k / 40.0),
                     rise = 0.12 * (1 - smooth(from, from + 0.45 * length_, x));
        line.push_back(at(x, -backAt(x) + (height - rise) * (backAt(x) + bellyAt(x))));
    }
    plate.stroke(line, {.width = 0.75, .swell = 0.1, .fade = 0.2, .wobble = 0.1});
}

void fin(Plate& plate, const Fish& fish, const Fin& f) {
    const Path outline = closedSpline(fish.path(f.outline), 8);
    plate.knockOut(outline, {.halo = 0.3, .shade = 0.22});
    {
        const Plate::Clip clip(plate, outline);
        plate.flat(outline, f.palette, f.tone);
        // The root is darker, the rim lets the light through.
        const Path root = fish.path(
            {f.rootFrom, lerp(f.rootFrom, f.tipFrom, 0.35), lerp(f.rootTo, f.tipTo, 0.35), f.rootTo});
        plate.flat(root, ramp(f.palette, f.tone + 0.25), 0.5);
        for (int k = 0; k < f.rays; ++k) {
            const double q = f.rays > 1 ? static_cast<double>(k) / (f.rays - 1) : 0.5;
            const Point a = fish.at(lerp(f.rootFrom, f.rootTo, q).x, lerp(f.rootFrom, f.rootTo, q).y);
            const Point b = fish.at(lerp(f.tipFrom, f.tipTo, q).x, lerp(f.tipFrom, f.tipTo, q).y);
            plate.stroke({a, lerp(a, b, 0.5), b}, {.width = 0.75, .swell = 0, .fade = 0.6, .wobble = 0.12});
            const double next = f.rays > 1 ? 0.36 / (f.rays - 1) : 0;
            const Point c =
                fish.at(lerp(f.tipFrom, f.tipTo, q + next).x, lerp(f.tipFrom, f.tipTo, q + next).y);
            plate.stroke({lerp(a, b, 0.5), lerp(a, c, 0.75), c},
                         {.width = 0.5, .swell = 0.2, .fade = 0.6, .wobble = 0.1});
        }
    }
    plate.contour(outline, 0.85);
}

void fishEye(Plate& plate, Point centre, double radius, Colour iris) {
    eye(plate, centre, {.radius = radius, .iris = iris, .pupilSize = 0.55, .lid = 0});
    plate.stroke(arc(centre, radius * 1.3, radius * 1.3, 20, 200), {.width = 0.5, .swell = 0.4, .fade = 0.4});
}

} // namespace tambrelle::engraver
