#pragma once

#include "plates/engraver/Plate.h"

namespace tambrelle::engraver {

/// A convex crystal of flat faces, turned in space.
struct CrystalForm {
    Palette palette = palettes::silver;
    /// Units for one of the crystal's own.
    double scale = 40;
    /// Turns about the axes x, y and z (in this order), degrees. x points right, y down, z to the viewer.
    Vector3 turn{16, 30, 0};
    double tone = 0;
    double contrast = 1.1;
    double spacing = 2.1;
    double coverage = 0.5;
    double hatchFrom = 0.2;
    double contour = 0.85;
    double edges = 0.55;
    double shade = 0.30;
    /// Strength of the far edges, as seen through a clear crystal.
    double clear = 0;
};

/// The hull of `corners` (any order, in the crystal's own units about its centre). Gives the outline.
Path crystal(Plate& plate, const std::vector<Vector3>& corners, Point centre, const CrystalForm& form = {});

namespace crystals {
/// Two pyramids foot to foot with blunt ends: native sulphur. `blunt` is the ends' share of the girdle.
std::vector<Vector3> bipyramid(double blunt, double elongation);
/// A box of these half edges.
std::vector<Vector3> cuboid(double x, double y, double z);
} // namespace crystals

/// A place of the crystal's own space on the plate, for marks on its faces.
Point crystalPoint(Vector3 p, Point centre, const CrystalForm& form);

} // namespace tambrelle::engraver
