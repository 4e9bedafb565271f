#pragma once

#include "plates/engraver/Colour.h"
#include "plates/engraver/Field.h"

namespace tambrelle::engraver {

/// A transparent sheet of premultiplied colour, one of the two that make a plate (wash and ink).
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

using Layer = Grid<Pixel>;

} // namespace tambrelle::engraver
