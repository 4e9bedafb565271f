#pragma once

#include "plates/engraver/PlaneCuts.h"

namespace tambrelle::engraver {

/// An outline that is inflated, or given a height function, and hatched by plane cuts: rocks, fruit, fish,
/// bread.
struct ReliefForm {
    Palette palette = palettes::stone;
    /// Breadth of the rounded rim in units; at least half the thing's breadth makes it a cushion.
    double bevel = 30;
    /// Height over that of a round section.
    double heightScale = 1;
    /// Height in units at a place, `depth` units inside the outline; absent: inflated.
    std::function<double(Point at, double depth)> height = {};
    /// Softening of the heights, in units.
    double soften = 1.5;
    Vector3 lines{0.30, 0.80, 0.52};
    Vector3 crossLines{0.75, -0.45, 0.5};
    /// Tone above which the second set of lines begins; 1 for none.
    double crossFrom = 0.62;
    bool hatched = true;
    double spacing = 2.2;
    double coverage = 0.5;
    double hatchFrom = 0.24;
    double tone = 0;
    double washStrength = 0.82;
    double contour = 0.9;
    double lit = 0.45;
    double shade = 0.35;
    double halo = 0.7;
    double highlight = 0.10;
    /// Darkening of hollows.
    bool occlusion = true;
    /// Replaces the tone of a surface (mirrors): unit normal and height in.
    std::function<double(Vector3 normal, double height)> toneAt = {};
    /// Changes the colour at a place.
    std::function<Colour(Point at, double height, double tone, Colour colour)> tint = {};
    /// Ink in creases and along ridges (broken stone).
    bool creases = false;
};

/// What was raised, for marks upon it.
class ReliefSurface {
public:
    /// Tone at a place, or nothing outside.
    std::optional<double> toneAt(Point p) const;
    bool covers(Point p) const { return toneAt(p).has_value(); }
    /// Height at a place, 0 outside.
    double heightAt(Point p) const;
    Path outline;
    Plate::Window window;
    Field tones, heights, mask;
};

ReliefSurface relief(Plate& plate, const Path& outline, const ReliefForm& form = {});

} // namespace tambrelle::engraver
