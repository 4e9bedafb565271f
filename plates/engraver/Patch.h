#pragma once

#include "plates/engraver/Path.h"

#include <functional>

namespace tambrelle::engraver {

/// A curved surface as a net of points with a tone at each: u counts the rows, v the places along a row.
struct Patch {
    std::size_t rows = 0;
    std::size_t columns = 0;
    std::vector<Point> points;
    std::vector<double> tones;

    Patch(std::size_t rowCount, std::size_t columnCount)
        : rows(rowCount),
          columns(columnCount),
          points(rowCount * columnCount),
          tones(rowCount * columnCount, 0.0) {}
    Point& point(std::size_t i, std::size_t j) { return points[i * columns + j]; }
    Point point(std::size_t i, std::size_t j) const { return points[i * columns + j]; }
    double& tone(std::size_t i, std::size_t j) { return tones[i * columns + j]; }
    double tone(std::size_t i, std::size_t j) const { return tones[i * columns + j]; }
    /// Rows become columns: hatching then runs the other way.
    Patch transposed() const {
        Patch t(columns, rows);
        for (std::size_t i = 0; i < rows; ++i)
            for (std::size_t j = 0; j < columns; ++j) {
                t.point(j, i) = point(i, j);
                t.tone(j, i) = tone(i, j);
            }
        return t;
    }
    /// The row at the fractional position x.
    Path row(double x) const {
        const auto i = std::min(static_cast<std::size_t>(std::max(0.0, x)), rows - 2);
        const double f = x - static_cast<double>(i);
        Path out(columns);
        for (std::size_t j = 0; j < columns; ++j)
            out[j] = lerp(point(i, j), point(i + 1, j), f);
        return out;
    }
};

/// i / (n - 1): where the i-th of n evenly placed things stands in 0...1.
inline double fraction(std::size_t i, std::size_t n) {
    return n > 1 ? static_cast<double>(i) / static_cast<double>(n - 1) : 0.5;
}

} // namespace tambrelle::engraver
