#include "plates/engraver/botany/Herb.h"

#include "plates/engraver/Lathe.h"
#include "plates/engraver/Tube.h"
#include "plates/engraver/botany/Roots.h"

namespace tambrelle::engraver {

using maths::lerp;

void bulb(Plate& plate, Point top, double width, double height, const Palette& palette) {
    rootlets(plate, top + Point{0, height - 2}, 11, 90, 120, height * 0.32);
    lathe(plate, top + Point{0, height}, height,
          {width * 0.3, width * 0.88, width, width * 0.78, width * 0.4, width * 0.2},
          {.tilt = 0.12, .palette = palette, .lines = Lines::along, .spacing = 1.5});
}

namespace {

Point drawRoot(Plate& plate, const HerbForm& f) {
    const Point foot = f.foot;
    switch (f.root) {
    case RootKind::none:
        return foot;
    case RootKind::fibrous:
        rootlets(plate, foot + Point{0, -2}, 13, 90, 135, 16);
        return foot;
    case RootKind::taproot:
        tube(plate, {foot + Point{0, -32}, foot + Point{-2, -10}, foot + Point{1, 12}}, {8, 6, 2.5, 0.5},
             {.palette = f.rootPalette, .rough = 0.08});
        rootlets(plate, foot + Point{-3, -14}, 2, 130, 60, 14);
        rootlets(plate, foot + Point{3, -10}, 2, 50, 60, 14);
        return foot + Point{0, -28};
    case RootKind::bulb:
        bulb(plate, foot + Point{0, -32}, 19, 32, f.rootPalette);
        return foot + Point{0, -28};
    case RootKind::rhizome:
        for (int k = 0; k < 6; ++k)
            rootlets(plate, foot + Point{-48.0 + 15 * k, 1}, 2, 90, 40, 14);
        tube(plate, {foot + Point{-60, -2}, foot + Point{-20, -6}, foot + Point{34, -3}}, {4, 6, 6.5, 5},
             {.palette = f.rootPalette, .rough = 0.12, .cutEnd = true});
        return foot + Point{0, -6};
    }
    return foot;
}

void stemHairs(Plate& plate, const Path& stem, const HerbForm& f) {
    for (int k = 0; k < f.hairs; ++k) {
        const double q = plate.random.uniform();
        const int side = plate.random.chance(0.5) ? 1 : -1;
        const Point n = rightOf(direction(angleAlong(stem, q))) * side,
                    at = along(stem, q) + n * (f.stemRadius * 0.6);
        plate.stroke({at, at + n * 1.8, at + n * 3.6 + Point{0, -0.8}},
                     {.width = 0.42, .swell = 0, .fade = 0.8, .wobble = 0, .colour = f.hairColour});
    }
}

} // namespace

void herb(Plate& plate, const HerbForm& f) {
    const Point foot = drawRoot(plate, f);
    const LeafKind& basal = f.basalLeaf ? *f.basalLeaf : f.leaf;
    // Outer leaves first, the middle ones over them.
    for (int k = 0; k < f.basal; ++k) {
        const int place = k % 2 == 0 ? k / 2 : f.basal - 1 - k / 2;
        const double t = f.basal > 1 ? (place - (f.basal - 1) / 2.0) / ((f.basal - 1) / 2.0) : 0.2;
        growLeaf(plate, foot, -90 + t * f.basalSpread + plate.random.around(4),
                 f.basalLength * (1 - 0.1 * std::fabs(t)), f.basalWidth, basal, t * 22);
    }
    const bool several = f.stems.size() > 1;
    std::vector<double> leans = f.stems;
    std::stable_sort(leans.begin(), leans.end(),
                     [](double a, double b) { return std::fabs(a) > std::fabs(b); });
    std::vector<Path> curves;
    for (const double lean : leans) {
        const double height = f.height * (several && std::fabs(lean) > 1 ? 0.86 : 1) - (f.foot.y - foot.y);
        const Path spine{foot, foot + Point{lean * 0.25, -height * 0.45}, foot + Point{lean, -height}};
        const Path curve = spline(spine, 40);
        tube(plate, spine, {f.stemRadius, f.tipRadius},
             {.palette = f.stemPalette, .spacing = 1.7, .tone = 0.02});
        stemHairs(plate, curve, f);
        curves.push_back(curve);
        const int nodes =
            f.arrangement == Arrangement::none ? 0 : (several ? std::max(1, f.leaves - 1) : f.leaves);
        for (int i = 0; i < nodes; ++i) {
            const double t = nodes > 1 ? i / static_cast<double>(nodes - 1) : 0;
            const Point at = along(curve, lerp(f.leavesFrom, f.leavesTo, t));
            const double size = lerp(f.leafLength, f.topLeafLength, t) * (several ? 0.76 : 1);
            const double width = lerp(f.leafWidth, f.topLeafWidth, t) * (several ? 0.76 : 1);
            std::vector<double> sides;
            if (f.arrangement == Arrangement::alternate)
                sides = {i % 2 == 0 ? -1.0 : 1.0};
            else if (f.arrangement == Arrangement::opposite)
                sides = {-1, 1};
            else
                sides = {-1.5, 1.5, -0.95, 0.95, -0.35, 0.4};
            for (const double side : sides)
                growLeaf(plate, at, -90 + lean * 0.15 + side * f.leafAngle + plate.random.around(5),
                         size * plate.random.uniform(0.93, 1.06) * (std::fabs(side) < 0.5 ? 0.8 : 1), width,
                         f.leaf, (side > 0 ? 1 : -1) * plate.random.uniform(12, 26));
        }
    }
    if (f.inflorescence)
        for (const Path& curve : curves)
            f.inflorescence(plate, curve);
}

} // namespace tambrelle::engraver
