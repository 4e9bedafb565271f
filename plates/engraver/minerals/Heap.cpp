#include "plates/engraver/minerals/Heap.h"

namespace tambrelle::engraver {

ReliefSurface heap(Plate& plate, Point foot, double halfWidth, double height, double peak,
                   const StoneForm& form) {
    const double shoulder = maths::lerp(0.82, 0.5, peak);
    const auto at = [&](double x, double y) { return foot + Point{halfWidth * x, -height * y}; };
    const Path outline =
        closedSpline({at(-1, 0), at(-0.55, shoulder), at(-0.14, 0.96), at(0.1, 0.97), at(0.52, shoulder),
                      at(1, 0), at(0.6, -0.09), at(0, -0.13), at(-0.6, -0.1)});
    StoneForm lump = form;
    lump.facets = 0;
    lump.creases = false;
    return stone(plate, outline, lump);
}

void straws(Plate& plate, const ReliefSurface& heap, int count, double longest, const Palette& palette) {
    const Bounds b = boundsOf(heap.outline);
    for (int placed = 0, tried = 0; placed < count && tried < count * 6; ++tried) {
        const double x = plate.random.uniform(b.left, b.right);
        const Point p{x, plate.random.uniform(b.top, b.bottom)};
        if (!heap.covers(p))
            continue;
        ++placed;
        const double way = plate.random.uniform(0, 360), span = plate.random.uniform(longest * 0.35, longest);
        const Point d = direction(way) * (span / 2),
                    bend = rightOf(unit(d)) * plate.random.around(span * 0.12);
        const Path line = spline({p - d, p + bend, p + d}, 8);
        if (line.front().y > b.bottom + 3 || line.back().y > b.bottom + 3)
            continue;
        plate.stroke(moved(line, {0.5, 0.9}), {.width = 1.6, .swell = 0.05, .fade = 0.05, .alpha = 0.75});
        plate.stroke(line, {.width = 1.5,
                            .swell = 0.02,
                            .fade = 0.02,
                            .colour = ramp(palette, plate.random.uniform(0.1, 0.5))});
    }
}

} // namespace tambrelle::engraver
