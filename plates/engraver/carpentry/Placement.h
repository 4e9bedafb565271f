#pragma once

#include "plates/engraver/Path.h"

namespace tambrelle::engraver {

/// Where a tool lies: points are given along its handle and to the right of it.
struct Placement {
    Point origin;
    /// Direction of the handle on the plate, see direction().
    double degrees = -45;
    Point at(double along, double across) const {
        const Point d = direction(degrees);
        return origin + d * along + rightOf(d) * across;
    }
    /// Many at once: x along, y across.
    Path at(const Path& points) const {
        Path out;
        for (const Point p : points)
            out.push_back(at(p.x, p.y));
        return out;
    }
};

} // namespace tambrelle::engraver
