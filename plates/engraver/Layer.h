#pragma once

#include "plates/engraver/Colour.h"
#include "plates/engraver/Field.h"

namespace tambrelle::engraver {

/// A place of a layer: premultiplied colour.
struct Pixel {
    float r = 0;
    float g = 0;
    float b = 0;
    float a = 0;

    /// Lays colour over what is there.
    void cover(Colour c, float alpha) {
        const float keep = 1 - alpha;
        r = c.r * alpha + r * keep;
        g = c.g * alpha + g * keep;
        b = c.b * alpha + b * keep;
        a = alpha + a * keep;
    }
    /// Slips colour under what is there.
    void underlay(Colour c, float alpha) {
        const float room = (1 - a) * alpha;
        r += c.r * room;
        g += c.g * room;
        b += c.b * room;
        a += room;
    }
    /// Tints only what is there already.
    void tint(Colour c, float alpha) {
        r += (c.r * a - r) * alpha;
        g += (c.g * a - g) * alpha;
        b += (c.b * a - b) * alpha;
    }
    void erase(float alpha) {
        const float keep = 1 - alpha;
        r *= keep;
        g *= keep;
        b *= keep;
        a *= keep;
    }
};

/// A transparent sheet of colour, one of the two that make a plate (wash and ink).
class Layer {
public:
    /// `width` x `height` pixels and `bleed` more on every side: coordinates run from -bleed.
    Layer(int width, int height, int bleed) : bleed_(bleed), cells_(width + 2 * bleed, height + 2 * bleed) {}

    int left() const { return -bleed_; }
    int top() const { return -bleed_; }
    /// One beyond the last.
    int right() const { return cells_.width() - bleed_; }
    int bottom() const { return cells_.height() - bleed_; }
    Pixel& operator()(int x, int y) { return cells_(x + bleed_, y + bleed_); }
    const Pixel& operator()(int x, int y) const { return cells_(x + bleed_, y + bleed_); }
    bool holds(int x, int y) const { return cells_.holds(x + bleed_, y + bleed_); }
    const std::vector<Pixel>& cells() const { return cells_.cells(); }

private:
    int bleed_;
    Grid<Pixel> cells_;
};

} // namespace tambrelle::engraver
