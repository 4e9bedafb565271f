#pragma once

#include "plates/engraver/Plate.h"

namespace tambrelle::engraver {

/// A flat face of a solid: boards, bricks, crystal faces.
struct FaceForm {
    double tone = 0.3;
    Palette palette = palettes::wood;
    /// Direction of the hatching, degrees; absent: along the first edge.
    std::optional<double> lines = std::nullopt;
    double spacing = 2.0;
    double coverage = 0.5;
    double hatchFrom = 0.2;
    double contour = 0.7;
    /// Cross-hatching over the lines.
    bool crossed = false;
    /// Tone that is added towards `gradientTo` (degrees) and taken away at the far side.
    double gradient = 0;
    double gradientTo = 60;
    /// Strength of wood grain (0.12 is a plank).
    double grain = 0;
    double shade = 0;
    double halo = 0.3;
    double wobble = 0.1;
    double highlight = 0.10;
};

void face(Plate& plate, const Path& outline, const FaceForm& form = {});

/// A thin curved plate between two curves: blades, shares, tyres.
struct BladeForm {
    Palette palette = palettes::iron;
    double tone = 0.26;
    /// Share of the breadth, from the back, that a darker rib takes.
    double rib = 0.22;
    double contour = 0.8;
    double shade = 0.30;
};
void blade(Plate& plate, const Path& back, const Path& edge, const BladeForm& form = {});

/// A ruled surface between two curves, whose tone is asked for at (u along them, v from the first to the
/// second).
struct SurfaceForm {
    Palette palette = palettes::iron;
    std::function<double(double u, double v)> tone = {};
    /// Hatching along the curves rather than from one to the other.
    bool linesAlong = false;
    double spacing = 1.9;
    double coverage = 0.5;
    double contour = 0.8;
    double shade = 0.30;
    double halo = 0.7;
};
void surface(Plate& plate, const Path& from, const Path& to, const SurfaceForm& form = {});

} // namespace tambrelle::engraver
