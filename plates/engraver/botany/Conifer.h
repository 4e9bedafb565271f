#pragma once

#include "plates/engraver/Plate.h"
#include "plates/engraver/botany/Flower.h"

namespace tambrelle::engraver {

/// A twig clothed with needles.
struct NeedleForm {
    double length = 15;
    /// Half breadth.
    double width = 0.9;
    /// Needles to each side.
    int count = 40;
    double angle = 50;
    /// Combed flat to two sides (fir, yew) or all round (juniper, spruce).
    bool flat = true;
    Palette palette = palettes::bluegreen;
    double twig = 2.2;
    Palette bark = palettes::bark;
};
void needleTwig(Plate& plate, const Path& spine, const NeedleForm& form = {});
/// Tufts of needles from short spurs (larch, cedar, pine: `perTuft` 2 long ones).
void needleTufts(Plate& plate, const Path& spine, int tufts, int perTuft, double length,
                 const Palette& palette = palettes::bluegreen, double spread = 150);
/// A twig of tiny overlapping scales with side twigs (cypress, savin, thuja).
void scaleTwig(Plate& plate, const Path& spine, double sideLength, int sideTwigs, double radius = 1.6,
               const Palette& palette = palettes::bluegreen);
/// A woody cone, base at `at`, in the direction `degrees` (-90 stands, 90 hangs).
struct ConeForm {
    double length = 70;
    double radius = 19;
    Profile shape = {0.75, 1, 1, 0.95, 0.8, 0.5};
    int rows = 13;
    int perRow = 7;
    Palette palette = palettes::brown;
    /// Opened scales stand out.
    double spread = 16;
    Profile scaleShape = shapes::obovate;
    /// Three-pointed bracts between the scales (silver fir).
    bool bracts = false;
};
void cone(Plate& plate, Point at, double degrees, const ConeForm& form = {});

} // namespace tambrelle::engraver
