#pragma once

#include "plates/engraver/Relief.h"

#include <cstdint>

namespace tambrelle::engraver {

/// Broken rock: an outline made uneven, facets that meet in creases, and a grain over them.
struct StoneForm {
    Palette palette = palettes::stone;
    std::uint64_t seed = 1;
    /// Flat breaks that cut the lump; 0 leaves it rounded.
    int facets = 9;
    /// Height of the grain in units, and the breadth of its largest bumps.
    double rough = 1.0;
    double grain = 22;
    /// Height of the middle over the rim, in units.
    double depth = 40;
    /// Unevenness of the outline, in units.
    double ragged = 1.2;
    double tone = 0;
    Vector3 lines{0.35, 0.75, 0.5};
    double spacing = 2.2;
    double coverage = 0.5;
    double hatchFrom = 0.24;
    double crossFrom = 0.6;
    double contour = 0.9;
    double shade = 0.35;
    bool creases = true;
    std::function<Colour(Point at, double height, double tone, Colour colour)> tint = {};
};

/// A stone within a polygon or any closed path of its corners.
ReliefSurface stone(Plate& plate, const Path& corners, const StoneForm& form = {});

/// One sort of grain strewn over a surface: its share among the sorts, and its colour.
struct Grain {
    double share = 1;
    Colour colour = sepia;
    double alpha = 1;
};
/// Strews angular grains over what was raised: granite, sand, earth. Radii in units.
void strew(Plate& plate, const ReliefSurface& surface, int count, const std::vector<Grain>& grains,
           double least = 0.7, double greatest = 2.2);

/// A line from one point to another that wanders sideways by `amount` units, as a broken edge does; both ends
/// are kept.
Path brokenEdge(Point from, Point to, double amount, std::uint64_t seed);

} // namespace tambrelle::engraver
