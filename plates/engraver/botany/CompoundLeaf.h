#pragma once

#include "plates/engraver/botany/Leaf.h"

namespace tambrelle::engraver {

/// One lobe of a palmate leaf: its direction from the leaf's axis in degrees and its length as a share of the
/// size.
struct Lobe {
    double angle = 0;
    double reach = 1;
};

/// A leaf whose lobes spread from one point: vine, maple, ivy, mallow, fig.
struct PalmateForm {
    std::vector<Lobe> lobes = {{-110, 0.55}, {-55, 0.82}, {0, 1}, {55, 0.82}, {110, 0.55}};
    /// How far the bays between lobes lie from the base, as a share of the shorter neighbour: 0.3 deep, 0.85
    /// shallow.
    double sinus = 0.55;
    /// Teeth to each side of a lobe and their height in units.
    double teeth = 4;
    double toothHeight = 2.2;
    Palette palette = palettes::leaf;
    double tone = 0;
    /// Fullness of the lobes: 0 straight, 1 as of a vine, 1.6 rounded.
    double bulge = 1;
    double contour = 0.7;
    double coverage = 0.45;
};
/// `size` is the length of the middle lobe, `degrees` its direction.
Path palmateLeaf(Plate& plate, Point base, double degrees, double size, const PalmateForm& form = {});

/// Feathered leaves: one rank of leaflets (pinnate) or leaflets on side ribs (bipinnate, `subdivided` > 0).
struct FrondForm {
    int pairs = 9;
    /// Length of the longest side rib, in units.
    double length = 22;
    /// Pairs of leaflets on each side rib; 0: the side ribs are leaflets themselves.
    int subdivided = 5;
    double leafletWidth = 1.6;
    Profile leafletShape = shapes::lance;
    Palette palette = palettes::leaf;
    /// Angle between midrib and side ribs; between these and the leaflets.
    double angle = 55;
    double subAngle = 45;
    /// Length of the last side ribs as a share; where along the frond the longest stand; where they begin.
    double tip = 0.15;
    double peak = 0.3;
    double from = 0.22;
    /// Radius of the midrib at its base.
    double rib = 1.3;
};
void frond(Plate& plate, const Path& spine, const FrondForm& form = {});

/// What a plant's leaves are like, whatever their size: used by herb(), branch() and growLeaf().
struct LeafKind {
    enum class Build { simple, pinnate, trifoliate, digitate, palmate, frond } build = Build::simple;
    Profile shape = shapes::ovate;
    Margin margin = {};
    double veins = 6;
    double slant = 0.28;
    bool parallel = false;
    double pucker = 0.14;
    /// Share of the length that is stalk.
    double petiole = 0.12;
    Palette palette = palettes::leaf;
    Palette stalk = palettes::stem;
    /// Pinnate: pairs of leaflets; digitate: leaflets. Frond: pairs of side ribs.
    int leaflets = 4;
    /// Half breadth of leaflets over their length.
    double leafletWidth = 0.27;
    /// Pinnate: ends in a leaflet, or in a tendril.
    bool terminal = true;
    /// Palmate: see PalmateForm.
    std::vector<Lobe> lobes = {{-110, 0.6}, {-55, 0.85}, {0, 1}, {55, 0.85}, {110, 0.6}};
    double sinus = 0.6;
    double teeth = 3;
    double toothHeight = 1.8;
    double bulge = 1;
    /// Frond: leaflets on each side rib.
    int subdivided = 4;
    double tone = 0;
};

/// A leaf of the kind, `length` units long with its stalk, growing from `base` in the direction `degrees` and
/// turning by `bend` degrees towards its tip; `width` is half its breadth (of a pinnate or frond leaf: half a
/// leaflet's reach).
void growLeaf(Plate& plate, Point base, double degrees, double length, double width, const LeafKind& kind,
              double bend = 0);

} // namespace tambrelle::engraver
