#pragma once

#include "plates/engraver/Lathe.h"

namespace tambrelle::engraver {

/// A woven surface: u runs across the rods (from 0 to 1), v along them.
struct Woven {
    std::function<Point(double u, double v)> at;
    std::function<double(double u, double v)> tone;
};

/// Wicker: rods that pass in turn before and behind upright stakes.
struct WeaveForm {
    Palette palette = palettes::tan;
    std::size_t rows = 14;
    std::size_t stakes = 20;
    /// How far a rod bulges where it passes before a stake, as a share of its breadth.
    double bulge = 0.35;
    double contour = 0.6;
};
void weave(Plate& plate, const Woven& surface, const WeaveForm& form = {});

/// The seen half of what was turned, between `from` and `to` along its axis.
Woven wovenLathe(const LatheSurface& surface, double from = 0, double to = 1);

/// A border of rods twisted about a path: rims and handles of baskets.
void plait(Plate& plate, const Path& spine, double radius, const Palette& palette = palettes::tan);

/// Rope or cord of `radius` units with the marks of its lay.
void rope(Plate& plate, const Path& spine, double radius, const Palette& palette = palettes::straw);

} // namespace tambrelle::engraver
