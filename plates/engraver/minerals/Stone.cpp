#include "plates/engraver/minerals/Stone.h"

#include "plates/engraver/Noise.h"

namespace tambrelle::engraver {

namespace {

// A plane that cuts the lump off from a distance on, seen from its middle.
struct Break {
    Point towards;
    double slope;
    double from;
};

Path uneven(const Path& corners, double amount, Random& random) {
    Path outline = resample(joined(corners, {corners.front()}), 240);
    outline.pop_back();
    constexpr double waves[] = {9, 17, 31, 53};
    double phases[4];
    for (double& phase : phases)
        phase = random.uniform(0, 2 * maths::pi);
    const Path sideways = normals(joined(outline, {outline.front()}));
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const double turn = 2 * maths::pi * static_cast<double>(i) / static_cast<double>(outline.size());
        double shift = 0;
        for (std::size_t k = 0; k < 4; ++k)
            shift += maths::sin(turn * waves[k] + phases[k]) / maths::pow(waves[k], 0.6);
        outline[i] = outline[i] + sideways[i] * (shift * amount * 0.55);
    }
    return outline;
}

} // namespace

ReliefSurface stone(Plate& plate, const Path& corners, const StoneForm& form) {
    Random random(form.seed * 7919 + 13);
    const Path outline = uneven(corners, form.ragged, random);
    const Bounds b = boundsOf(outline);
    const Point centre = centroid(outline), half{(b.right - b.left) / 2, (b.bottom - b.top) / 2};
    std::vector<Break> breaks;
    for (int k = 0; k < form.facets; ++k) {
        // Drawn one by one: the order in which an initialiser's parts are worked out is not to be leant upon.
        const Point towards = direction(random.uniform(0, 360));
        const double slope = random.uniform(0.15, 1.2);
        breaks.push_back({towards, slope, random.uniform(0.15, 0.75)});
    }
    const Noise noise(form.seed, 4, 0.55);
    ReliefForm r;
    r.palette = form.palette;
    r.soften = 1.6;
    r.lines = form.lines;
    r.tone = form.tone;
    r.spacing = form.spacing;
    r.coverage = form.coverage;
    r.hatchFrom = form.hatchFrom;
    r.crossFrom = form.crossFrom;
    r.contour = form.contour;
    r.shade = form.shade;
    r.creases = form.creases;
    r.tint = form.tint;
    r.height = [&](Point at, double depth) {
        const Point q{(at.x - centre.x) / half.x, (at.y - centre.y) / half.y};
        double z = form.facets > 0 ? 1 : std::sqrt(std::max(0.0, 1 - 0.7 * dot(q, q)));
        for (const Break& cut : breaks)
            z = std::min(z, 1 - cut.slope * std::max(dot(cut.towards, q) - cut.from + 0.35, -0.6));
        z = z * form.depth + form.rough * noise(at.x / form.grain, at.y / form.grain);
        return std::min(z, form.depth * 0.2 + depth * 1.6);
    };
    return relief(plate, outline, r);
}

void strew(Plate& plate, const ReliefSurface& surface, int count, const std::vector<Grain>& grains,
           double least, double greatest) {
    const Plate::Clip clip(plate, surface.outline);
    const Bounds b = boundsOf(surface.outline);
    double all = 0;
    for (const Grain& g : grains)
        all += g.share;
    for (int placed = 0, tried = 0; placed < count && tried < count * 6; ++tried) {
        const double x = plate.random.uniform(b.left, b.right);
        const Point p{x, plate.random.uniform(b.top, b.bottom)};
        if (!surface.covers(p))
            continue;
        ++placed;
        const double size = plate.random.uniform(least, greatest), stretch = plate.random.uniform(0.5, 1.4);
        std::array<double, 6> turns{};
        for (double& t : turns)
            t = plate.random.uniform(0, 360);
        std::sort(turns.begin(), turns.end());
        Path shape;
        for (const double t : turns)
            shape.push_back({p.x + size * stretch * direction(t).x, p.y + size / stretch * direction(t).y});
        double pick = plate.random.uniform(0, all);
        for (const Grain& g : grains) {
            pick -= g.share;
            if (pick > 0)
                continue;
            if (g.colour.r == sepia.r && g.colour.g == sepia.g)
                plate.ink(shape, g.colour, g.alpha);
            else
                plate.flat(shape, g.colour, g.alpha);
            break;
        }
    }
}

Path brokenEdge(Point from, Point to, double amount, std::uint64_t seed) {
    const double span = length(to - from);
    const auto count = static_cast<std::size_t>(std::clamp(span / 2.2, 2.0, 120.0));
    const Noise noise(seed, 3, 0.65);
    const Point side = rightOf(unit(to - from));
    Path path;
    for (std::size_t i = 0; i <= count; ++i) {
        const double t = static_cast<double>(i) / static_cast<double>(count);
        const double ends = maths::smooth(0, 0.06, t) * maths::smooth(1, 0.94, t);
        path.push_back(lerp(from, to, t) + side * (amount * 0.6 * ends * noise(t * span / 13, 0.5)));
    }
    return path;
}

} // namespace tambrelle::engraver
