#pragma once

#include "plates/engraver/Plate.h"
#include "plates/engraver/Sheet.h"

namespace tambrelle::engraver {

/// Rosettes and heads of leaves in space: lettuce, cabbage, spinach, endive, lamb's lettuce.
struct LeafHeadForm {
    int leaves = 26;
    /// Length and half breadth of the inmost and the outmost leaves.
    double innerLength = 60, outerLength = 100;
    double innerWidth = 24, outerWidth = 46;
    /// Angles from the axis at base and tip, of the inmost and outmost: closed head 0, -30 ... 50, 60; open
    /// rosette 20, 30 ... 80, 95.
    double innerBase = 0, innerTip = -16;
    double outerBase = 52, outerTip = 76;
    Profile shape = {0.3, 0.6, 0.9, 1, 0.95, 0};
    double cup = 1.1;
    double curl = 24;
    /// Waves of the rims, in units, and half turns across.
    double ruffle = 4;
    double ruffleTurns = 11;
    Palette palette = palettes::leafy;
    std::optional<Palette> tips = std::nullopt;
    /// A pale rib down each leaf (0.25), and the puckering between veins (0.1).
    double rib = 0.25;
    double pucker = 0.08;
    /// Seen from the side 0, from above 90; the axis's direction.
    double tilt = 34;
    double direction = -90;
    double spacing = 2.0;
};
void leafHead(Plate& plate, Point base, const LeafHeadForm& form = {});

/// The curd of a cauliflower or broccoli: knobs on a dome.
struct CurdForm {
    /// Half breadth and half height on the plate.
    double width = 62;
    double height = 44;
    int knobs = 70;
    /// Radius of the largest.
    double knob = 11;
    Palette palette = mix(palettes::cream, palettes::whiteflower, 0.6);
    /// Grains on every knob.
    int grains = 0;
};
void curd(Plate& plate, Point centre, const CurdForm& form = {});

} // namespace tambrelle::engraver
