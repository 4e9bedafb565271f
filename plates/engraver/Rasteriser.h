#pragma once

#include "plates/engraver/Path.h"

namespace tambrelle::engraver {

/// Turns polygons into anti-aliased coverage by accumulating signed areas along scan lines: every pixel gets
/// the exact share of its area that the polygon covers (winding either way; overlaps count once).
class Rasteriser {
public:
    Rasteriser(int width, int height);

    /// Calls `paint(x, y, coverage)` for every pixel that `outline` (in pixels) touches, coverage in (0, 1].
    template <class Paint>
    void fill(const Path& outline, const Paint& paint) {
        if (!accumulate(outline))
            return;
        for (int y = top_; y <= bottom_; ++y) {
            Span& span = spans_[static_cast<std::size_t>(y)];
            if (span.from > span.to)
                continue;
            float* row = areas_.data() + static_cast<std::size_t>(y) * stride_;
            float sum = 0;
            const int end = std::min(span.to, width_ + 1);
            for (int x = span.from; x <= end; ++x) {
                float& cell = row[x];
                sum += cell;
                cell = 0;
                const float cover = std::min(1.0F, sum < 0 ? -sum : sum);
                if (cover > 0.004F && x < width_)
                    paint(x, y, cover);
            }
            span = Span{};
        }
    }

private:
    struct Span {
        int from = 1 << 30;
        int to = -1;
    };
    bool accumulate(const Path& outline);
    void addEdge(Point a, Point b);
    void addCell(int x, int y, double area);

    int width_;
    int height_;
    std::size_t stride_;
    int top_ = 0;
    int bottom_ = -1;
    double carried_ = 0;       // within one scan line of one edge
    std::vector<float> areas_; // kept at zero between calls
    std::vector<Span> spans_;
};

} // namespace tambrelle::engraver
