#pragma once

#include <cstddef>
#include <vector>

namespace tambrelle::engraver {

/// A rectangle of values, one a pixel.
template <class T>
class Grid {
public:
    Grid() = default;
    Grid(int width, int height, T value = T{})
        : width_(width),
          height_(height),
          cells_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), value) {}

    int width() const { return width_; }
    int height() const { return height_; }
    T& operator()(int x, int y) { return cells_[offset(x, y)]; }
    const T& operator()(int x, int y) const { return cells_[offset(x, y)]; }
    bool holds(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }
    std::vector<T>& cells() { return cells_; }
    const std::vector<T>& cells() const { return cells_; }

private:
    std::size_t offset(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
    }
    int width_ = 0;
    int height_ = 0;
    std::vector<T> cells_;
};

using Field = Grid<float>;

/// Gaussian blur; `sigma` in pixels. Wide ones are three box blurs, whose cost does not grow with sigma and
/// whose sigma is kept to half a pixel.
void blur(Field& field, double sigma);
/// Greatest (least) value within `radius` pixels, a square window.
Field dilated(const Field& field, int radius);
Field eroded(const Field& field, int radius);
/// Distance in pixels from each pixel inside (value > 0.5) to the nearest outside; 0 outside.
Field distanceInside(const Field& mask);
/// Twice the size, linear between.
Field doubled(const Field& field);
/// Central differences at a pixel, in value a pixel.
inline float slopeX(const Field& f, int x, int y) {
    const int a = x > 0 ? x - 1 : x;
    const int b = x + 1 < f.width() ? x + 1 : x;
    return b > a ? (f(b, y) - f(a, y)) / static_cast<float>(b - a) : 0.0F;
}
inline float slopeY(const Field& f, int x, int y) {
    const int a = y > 0 ? y - 1 : y;
    const int b = y + 1 < f.height() ? y + 1 : y;
    return b > a ? (f(x, b) - f(x, a)) / static_cast<float>(b - a) : 0.0F;
}

} // namespace tambrelle::engraver
