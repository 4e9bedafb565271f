#pragma once

#include "plates/engraver/Lathe.h"
#include "plates/engraver/botany/CompoundLeaf.h"

namespace tambrelle::engraver {

/// A swollen root below a tuft of leaves: carrot, turnip, beet, radish, salsify.
struct RootVegetableForm {
    /// Where the leaves leave the root.
    Point crown{200, 170};
    double length = 110;
    /// Radius from the crown to where the tail begins.
    Profile shape = {15, 20, 19, 15.5, 11, 6, 2.2};
    double tail = 30;
    Palette palette = palettes::carrot;
    /// Fades in below this share of the length (turnips' white), if given.
    std::optional<Palette> lower = std::nullopt;
    double lowerFrom = 0.35;
    Lines lines = Lines::across;
    double rough = 0.04;
    /// Short cross marks on the skin.
    int lenticels = 20;
    /// Hair roots to the sides.
    int hairs = 5;
    LeafKind leaf = {};
    int leaves = 5;
    double leafLength = 110;
    double leafWidth = 20;
    double leafSpread = 50;
    Palette stalk = palettes::stem;
    double stalkRadius = 2.4;
    /// Direction of the root in degrees (90 straight down); the leaves go the other way.
    double direction = 90;
};
void rootVegetable(Plate& plate, const RootVegetableForm& form);

/// The root alone, for bundles. Gives its outline.
Path swollenRoot(Plate& plate, const RootVegetableForm& form);

/// Potato-like tubers: knobbly ovals with eyes. `direction` is that of the long axis.
struct TuberForm {
    double length = 46;
    double width = 34;
    double direction = 0;
    double knobs = 0.08;
    int eyes = 6;
    Palette palette = palettes::root;
};
void tuber(Plate& plate, Point centre, const TuberForm& form = {});

/// A cut face: a disc of flesh with rings (beet), rays, or pips around the middle.
struct CutForm {
    double radius = 30;
    double squash = 0.9;
    Palette rind = palettes::red;
    Palette flesh = palettes::cream;
    double rindWidth = 0.09;
    int rings = 0;
    /// Segments of a citrus.
    int segments = 0;
    /// Pips in a circle at this share of the radius.
    int pips = 0;
    double pipsAt = 0.35;
    Palette pip = palettes::brown;
    /// A stone in the middle: radius as a share, 0 none.
    double stone = 0;
    Palette stonePalette = palettes::brown;
};
void cutFace(Plate& plate, Point centre, const CutForm& form);

} // namespace tambrelle::engraver
