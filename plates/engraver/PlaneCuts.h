#pragma once

#include "plates/engraver/Plate.h"

namespace tambrelle::engraver {

/// Engraving lines as the cuts of parallel planes through a relief: coherent, and bending round the form.
struct PlaneCuts {
    /// Normal of the planes (x right, y down, z to the viewer).
    Vector3 normal{0.30, 0.80, 0.52};
    double spacing = 2.2;
    double from = 0.24;
    double coverage = 0.5;
    double gamma = 1.0;
    double widest = 1.2;
    /// Unevenness, in line spacings.
    double wobble = 0.35;
    std::uint64_t seed = 3;
};

/// The ink of the cuts, a value 0 ... 1 a pixel, over the relief `heights` (units) with `tones` where `mask`
/// > 0.5. The window places the fields on the plate; all three have its size.
Field cutInk(const Plate::Window& window, const Field& heights, const Field& tones, const Field& mask,
             const PlaneCuts& cuts);

/// Lines at the integer values of `phase` whose local frequency is `frequency` (a unit): the width is tone x
/// spacing x coverage, and every other line fades out where they crowd. Used by plane cuts and by sheets.
double lineInk(double phase, double frequency, double tone, double spacing, double from, double coverage,
               double gamma, double widest);

} // namespace tambrelle::engraver
