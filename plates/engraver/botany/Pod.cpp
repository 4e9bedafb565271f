#include "plates/engraver/botany/Pod.h"

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/Sheet.h"

namespace tambrelle::engraver {

void pod(Plate& plate, const Path& spine, const PodForm& f) {
    const Path s = resample(spline(spine), 60);
    const Path n = normals(s);
    const Profile shape{0.25, 0.75, 1, 1, 0.95, 0.6, 0.05};
    const auto rim = [&](double low, double high) {
        Path right, left;
        for (std::size_t i = 0; i < s.size(); ++i) {
            const double q = fraction(i, s.size()),
                         bulge = f.open ? 1 : 1 + 0.10 * maths::cos(2 * maths::pi * q * f.seeds);
            right.push_back(s[i] + n[i] * (f.width * shape(q) * bulge * high));
            left.push_back(s[i] - n[i] * (f.width * shape(q) * bulge * low));
        }
        return band(right, left);
    };
    relief(plate, rim(1, 1),
           {.palette = f.palette, .bevel = f.width, .lines = {0.8, 0.3, 0.5}, .spacing = 1.9, .tone = 0.02});
    const Point tip = s.back();
    const double way = angleAlong(s, 1);
    plate.stroke({tip, polar(tip, way, 2.5), polar(tip, way - 25, 5.5)},
                 {.width = 0.9, .swell = 0, .fade = 0.8});
    if (f.open) {
        const Path inside = rim(0.62, 0.70);
        plate.knockOut(inside, {.halo = 0.2, .shade = 0});
        plate.flat(inside, f.inside, 0.34);
        plate.contour(inside, 0.75);
    }
    for (int k = 0; k < f.seeds; ++k) {
        const double q = 0.10 + 0.78 * (k + 0.5) / f.seeds;
        const Point at = along(s, q);
        const double r = f.width * shape(q) * (f.open ? 0.58 : 0.62);
        if (f.open)
            ball(plate, at, r,
                 {.palette = f.seed,
                  .direction = angleAlong(s, q),
                  .squash = f.seedSquash,
                  .spacing = 1.6,
                  .contour = 0.6});
        else
            plate.stroke(arc(at, r, r * 0.9, -40, 140, 14), {.width = 0.7, .swell = 0.4, .fade = 0.4});
    }
}

void capsule(Plate& plate, Point at, double degrees, const CapsuleForm& f) {
    const LatheSurface s = lathe(plate, at, f.length, f.shape.times(f.radius),
                                 {.direction = degrees,
                                  .tilt = 0.22,
                                  .palette = f.palette,
                                  .lines = Lines::along,
                                  .spacing = 1.7,
                                  .ribs = f.ribs});
    for (int k = 0; k < f.prickles; ++k) {
        const double u = plate.random.uniform(0.05, 0.95), a = plate.random.uniform(0, 180);
        const Point p = s.at(u, a), out = unit(p - (at + direction(degrees) * (f.length * 0.5)));
        plate.stroke({p, p + out * 2.4, p + out * 5}, {.width = 1.0, .swell = 0, .fade = 0.9, .wobble = 0});
    }
    if (!f.lid)
        return;
    const Path rim = s.ring(1, 0, 360, f.radius * 0.14);
    plate.knockOut(rim, {.halo = 0.3, .shade = 0.3});
    plate.flat(rim, f.palette, 0.25);
    const Point middle = s.at(1, 0, -f.shape(1) * f.radius);
    for (std::size_t k = 0; k < rim.size(); k += 5)
        plate.stroke({middle, lerp(middle, rim[k], 0.95)},
                     {.width = 0.8, .swell = 0, .fade = 0.2, .wobble = 0});
    plate.contour(rim, 0.8);
}

} // namespace tambrelle::engraver
