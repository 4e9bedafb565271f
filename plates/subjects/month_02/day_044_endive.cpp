// Curled endive, Cichorium endivia: a flat rosette seen from above, its many narrow leaves finely cut and
// frizzy to the very rim, with white ribs; green without, blanched to a pale yellow heart.

#include "plates/engraver/Ground.h"
#include "plates/engraver/Path.h"
#include "plates/engraver/Subject.h"
#include "plates/engraver/Tube.h"

using namespace tambrelle::engraver;

namespace {

/// The rim of a leaf crimped into curls of about `size` units.
Path crimped(const Path& rim, double size) {
    const double total = arcLength(rim), curls = std::round(total / size);
    const Path even = resample(rim, static_cast<std::size_t>(curls) * 7);
    const Path out = normals(even);
    const double side = signedArea(even) > 0 ? -1 : 1;
    Path curly;
    for (std::size_t i = 0; i < even.size(); ++i) {
        const double turn = static_cast<double>(i) / static_cast<double>(even.size()) * curls * maths::pi;
        curly.push_back(even[i] + out[i] * (side * size * (0.55 * std::fabs(maths::sin(turn)) - 0.2)));
    }
    return curly;
}

/// A leaf cut into lobes with crimped rims, about a pale rib.
void frizzyLeaf(Plate& p, const Path& spine, double width, const Palette& palette, double tone) {
    constexpr std::size_t steps = 120;
    const Profile shape{0.2, 0.22, 0.5, 0.85, 1, 0.95, 0.75, 0.4};
    const Path rib = resample(spline(spine), steps + 1);
    const double lobes = arcLength(rib) / 25 + 1;
    const Path ways = tangents(rib), across = normals(rib);
    const double phases[] = {p.random.uniform(), p.random.uniform()};
    const auto lobeAt = [&](double u, int half) {
        return 0.66 - 0.34 * maths::cos((lobes * u + phases[half]) * 2 * maths::pi);
    };
    const auto at = [&](std::size_t i, int half, double share) {
        const double u = static_cast<double>(i) / steps, reach = share * width * shape(u) * lobeAt(u, half);
        return rib[i] + across[i] * ((half == 0 ? -1 : 1) * reach) + ways[i] * (reach * 0.3);
    };
    const auto rim = [&](double share) {
        Path sides[2];
        for (int half = 0; half < 2; ++half)
            for (std::size_t i = 0; i <= steps; ++i)
                sides[half].push_back(at(i, half, share));
        return band(sides[0], sides[1]);
    };
    const Path outline = crimped(rim(1), 4.6);
    p.knockOut(outline, {.shade = 0.4});
    p.flat(outline, palette, 0.5 + tone);
    p.flat(rim(0.74), palette, 0.36 + tone);
    p.flat(rim(0.42), palette, 0.2 + tone);
    // A vein into every lobe; the bays, where the blade dips, are dark.
    for (int half = 0; half < 2; ++half)
        for (std::size_t i = steps / 6; i < steps - 4; ++i) {
            const auto lobe = [&](std::size_t k) { return lobeAt(static_cast<double>(k) / steps, half); };
            if (lobe(i) >= lobe(i - 1) && lobe(i) > lobe(i + 1))
                p.stroke({at(i, half, 0.1), at(i, half, 0.8)}, {.width = 0.6, .swell = 0.1, .fade = 0.6});
            if (lobe(i) <= lobe(i - 1) && lobe(i) < lobe(i + 1))
                for (const std::size_t k : {i - 2, i, i + 2})
                    p.stroke({at(k, half, 0.95), at(k, half, 0.35)}, {.width = 0.8, .swell = 0, .fade = 0.9});
        }
    p.contour(outline, {.width = 0.75});
    tube(p, {rib[0], rib[steps / 2], rib[steps * 9 / 10]}, {width * 0.15, width * 0.1, 0.6},
         {.palette = palettes::cream, .lines = Lines::none, .contour = 0.5, .shade = 0.1, .halo = 0.2});
}

} // namespace

static const Subject subject{
    "day_044_endive", [](Plate& p) {
        ground(p, 80, 320, 284, 4);
        const Point heart{200, 196};
        constexpr int leaves = 42;
        const Palette blanched = mix(palettes::yellow, palettes::cream, 0.6);
        for (int k = 0; k < leaves; ++k) {
            const double q = k / (leaves - 1.0), turn = k * 137.50776 + 20;
            const Point d = direction(turn);
            // Seen from above at a slant: the rosette is foreshortened and its heart stands up.
            const double reach = 138 - 104 * maths::pow(q, 1.3), rise = 18 * q;
            const auto at = [&](double share, double lift) {
                return heart + Point{d.x * reach * share, d.y * reach * share * 0.76 - lift};
            };
            const double green = maths::smooth(0.8, 0.25, q);
            frizzyLeaf(p, {at(0.04, rise), at(0.5, rise + 6), at(1, rise)},
                       (30 - 15 * q) * (0.8 + 0.2 * std::fabs(d.x)),
                       mix(blanched, mix(palettes::leaf, palettes::darkleaf, 0.4), green),
                       0.06 * (d.x + d.y) - 0.06 * (1 - green));
        }
    }};
