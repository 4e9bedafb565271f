#include "plates/engraver/zoology/Horn.h"

#include "plates/engraver/Tube.h"

namespace tambrelle::engraver {

void horn(Plate& plate, const Path& spine, const Profile& radius, const HornForm& form) {
    const Path s = tube(plate, spine, radius,
                        {.palette = form.palette, .spacing = 1.7, .tone = form.tone, .contour = 0.8});
    if (form.tip) {
        const std::size_t from = s.size() * 6 / 10;
        const Path n = normals(s);
        Path right, left;
        for (std::size_t i = from; i < s.size(); ++i) {
            const double r = radius(static_cast<double>(i) / static_cast<double>(s.size() - 1)) * 0.9;
            right.push_back(s[i] + n[i] * r);
            left.push_back(s[i] - n[i] * r);
        }
        plate.flat(band(right, left), *form.tip, 0.6);
    }
    for (int k = 0; k < form.rings; ++k) {
        const double q = 0.03 + 0.75 * (k + 0.5) / form.rings;
        const Point c = along(s, q), t = direction(angleAlong(s, q)), n = rightOf(t);
        const double r = radius(q);
        // A ring bows towards the tip, and is heavier on the side away from the light.
        plate.stroke(spline({c - n * (r * 1.08), c + t * (r * 0.42), c + n * (r * 1.08)}, 8),
                     {.width = 0.75 - 0.35 * q,
                      .swell = n.x + n.y > 0 ? 0.6 : 0.1,
                      .fade = n.x + n.y > 0 ? 0.1 : 0.6,
                      .wobble = 0.05});
    }
}

} // namespace tambrelle::engraver
