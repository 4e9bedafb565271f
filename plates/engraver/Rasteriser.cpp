#include "plates/engraver/Rasteriser.h"

namespace tambrelle::engraver {

Rasteriser::Rasteriser(int width, int height)
    : width_(width),
      height_(height),
      stride_(static_cast<std::size_t>(width) + 3),
      areas_(stride_ * static_cast<std::size_t>(height), 0.0F),
      spans_(static_cast<std::size_t>(height)) {}

bool Rasteriser::accumulate(const Path& outline) {
    if (outline.size() < 3)
        return false;
    const Bounds b = boundsOf(outline);
    if (!(b.right > 0) || !(b.bottom > 0) || !(b.left < width_) || !(b.top < height_))
        return false;
    top_ = std::clamp(static_cast<int>(std::floor(b.top)), 0, height_ - 1);
    bottom_ = std::clamp(static_cast<int>(std::ceil(b.bottom)), 0, height_ - 1);
    for (std::size_t i = 0; i < outline.size(); ++i)
        addEdge(outline[i], outline[i + 1 < outline.size() ? i + 1 : 0]);
    return true;
}

void Rasteriser::addCell(int x, int y, double area) {
    Span& span = spans_[static_cast<std::size_t>(y)];
    span.from = std::min(span.from, x);
    span.to = std::max(span.to, x);
    areas_[static_cast<std::size_t>(y) * stride_ + static_cast<std::size_t>(x)] += static_cast<float>(area);
}

void Rasteriser::addEdge(Point a, Point b) {
    double sign = 1;
    if (a.y > b.y) {
        std::swap(a, b);
        sign = -1;
    }
    if (a.y == b.y || b.y <= 0 || a.y >= height_)
        return;
    const double slope = (b.x - a.x) / (b.y - a.y);
    const int first = std::max(0, static_cast<int>(a.y));
    const int last = std::min(height_ - 1, static_cast<int>(std::ceil(b.y)) - 1);
    for (int y = first; y <= last; ++y) {
        const double ya = std::max(a.y, static_cast<double>(y));
        const double yb = std::min(b.y, static_cast<double>(y + 1));
        if (yb <= ya)
            continue;
        const double height = (yb - ya) * sign;
        double xa = a.x + (ya - a.y) * slope;
        double xb = a.x + (yb - a.y) * slope;
        if (xa > xb)
            std::swap(xa, xb);
        xa = std::clamp(xa, 0.0, static_cast<double>(width_));
        xb = std::clamp(xb, 0.0, static_cast<double>(width_));
        const int ia = static_cast<int>(xa);
        const int ib = static_cast<int>(xb);
        if (ia == ib) { // within one column: a trapezoid
            const double inside = (xa + xb) / 2 - ia;
            addCell(ia, y, height * (1 - inside));
            addCell(ia + 1, y, height * inside);
            continue;
        }
        // Several columns: each gets the growth of the covered area up to its right side.
        const double perColumn = height / (xb - xa);
        double before = 0;
        for (int x = ia; x <= ib; ++x) {
            const double from = std::max(xa, static_cast<double>(x));
            const double to = std::min(xb, static_cast<double>(x + 1));
            const double rise = (to - from) * perColumn;
            // Area of column x to the right of the edge, given the height reached before and within it.
            const double area = before + rise * (x + 1 - (from + to) / 2);
            addCell(x, y, area - carried_);
            carried_ = area;
            before += rise;
        }
        addCell(ib + 1, y, height - carried_);
        carried_ = 0;
    }
}

} // namespace tambrelle::engraver
