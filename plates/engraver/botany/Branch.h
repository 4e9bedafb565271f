#pragma once

#include "plates/engraver/Lathe.h"
#include "plates/engraver/botany/CompoundLeaf.h"

namespace tambrelle::engraver {

/// Something that hangs or stands on a branch at a place, the branch going in the direction `degrees` there.
using FruitAt = std::function<void(Plate&, Point at, double degrees)>;

/// One leaf on a branch: at the share `at` of it, in the direction `degrees`.
struct BranchLeaf {
    double at = 0.5;
    double degrees = 60;
    double length = 66;
    double width = 16;
};
struct BranchFruit {
    double at = 0.5;
    FruitAt fruit;
};

/// A leafy twig with its fruit: cherry, lemon, olive, oak.
struct BranchForm {
    Path spine = {{90, 80}, {160, 66}, {240, 72}, {312, 58}};
    Profile radius = {4.5, 3.2, 2};
    Palette bark = palettes::bark;
    LeafKind leaf = {};
    std::vector<BranchLeaf> leaves = {};
    /// Drawn under the twig and the leaves' bases.
    std::vector<BranchFruit> behind = {};
    std::vector<BranchFruit> fruits = {};
    /// Side twigs: control points, base first.
    std::vector<Path> sideTwigs = {};
};
/// Gives the branch's curve.
Path branch(Plate& plate, const BranchForm& form);

/// A fruit of turned shape with a stalk at its top and the remains of the flower below: apple, pear, quince,
/// lemon.
struct PomeForm {
    double length = 60;
    /// Radius from the stalk end to the blossom end, in units.
    Profile shape = {6, 24, 31, 32, 28, 18, 5};
    Palette palette = palettes::red;
    /// A blush of this palette on the lit side.
    std::optional<Palette> blush = std::nullopt;
    Lines lines = Lines::along;
    double tilt = 0.12;
    double stalk = 16;
    /// Hangs in this direction.
    double direction = 92;
    /// Withered sepals at the blossom end: their length, 0 for none.
    double calyx = 4;
    /// Dots on the skin (oranges, lemons, pears).
    int dots = 0;
    /// A seam from stalk to tip (peach, apricot, plum).
    bool suture = false;
    /// Velvet: fine short hairs at the rim.
    bool velvet = false;
    int ribs = 0;
    double ribDepth = 0.08;
};
/// Hung with its stalk's upper end at `at`. Gives the surface, for marks upon it.
LatheSurface pome(Plate& plate, Point at, const PomeForm& form);
FruitAt hangingPome(PomeForm form);

/// Acorn, hazel, chestnut and other nuts: base (scar) at `at`, tip in the direction `degrees`.
void acorn(Plate& plate, Point at, double degrees, double radius, const Palette& palette = palettes::oldleaf);
void nut(Plate& plate, Point at, double degrees, double radius, double length,
         const Palette& palette = palettes::chestnut, bool scar = true);
/// A bunch of hanging drupelets (blackberry, mulberry, raspberry).
void drupelets(Plate& plate, Point at, double degrees, double radius, double length, const Palette& palette);
/// Winged key (samara): seed end at `at`, wing in the direction `degrees`.
void samara(Plate& plate, Point at, double degrees, double length, double width,
            const Palette& palette = palettes::oldleaf);
/// Hanging or standing catkin of scales along a spine.
void catkin(Plate& plate, const Path& spine, double radius, const Palette& palette = palettes::oldleaf,
            const Palette& dust = palettes::yellow);
/// A bud of a few scales.
void bud(Plate& plate, Point at, double degrees, double length, const Palette& palette = palettes::bark);
/// Sharp thorn.
void thorn(Plate& plate, Point at, double degrees, double length, const Palette& palette = palettes::bark);

} // namespace tambrelle::engraver
