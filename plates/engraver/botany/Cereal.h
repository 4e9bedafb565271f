#pragma once

#include "plates/engraver/botany/CompoundLeaf.h"

namespace tambrelle::engraver {

/// An ear of two ranks of spikelets (or more), seen flat or from its edge.
struct EarForm {
    int spikelets = 16;
    /// Length and half breadth of a spikelet.
    double length = 14;
    double width = 4.5;
    /// Angle of the spikelets from the axis: 12 tight, 30 lax.
    double angle = 20;
    /// Length of the awns, 0 for none; how far they fan out, degrees.
    double awn = 0;
    double awnSpread = 10;
    /// Rows seen: 2 flat ear (two-row barley, wheat from its side), 3 a square one (six-row barley).
    int rows = 2;
    Palette palette = palettes::straw;
    /// Bare rachis shows between lax spikelets.
    bool lax = false;
    double tone = 0.1;
};
/// Along the spline through `spine`, from the base of the ear to its tip.
void ear(Plate& plate, const Path& spine, const EarForm& form = {});

/// A loose panicle: branches in half whorls with hanging (or standing) spikelets: oat, millet, panic, reed.
struct PanicleForm {
    int whorls = 7;
    /// Reach of the lowest branches.
    double width = 44;
    /// How the reach runs from the lowest whorl to the highest.
    Profile taper = {1, 0.9, 0.55, 0.2};
    /// Spikelets on a branch; their length and half breadth.
    int perBranch = 2;
    double spikelet = 15;
    double spikeletWidth = 3.2;
    double awn = 0;
    /// 1 hang from the branches' ends, 0 stand.
    double hang = 1;
    double angle = 62;
    /// Round grains of this radius instead of spikelets (millet, sorghum).
    double grain = 0;
    Palette palette = palettes::straw;
};
/// On the curve `stem`, from the share `from` of it to its tip.
void grassPanicle(Plate& plate, const Path& stem, double from, const PanicleForm& form = {});

/// A stand of cereal: stems that spread, each with what `head` draws along its upper part, and strap leaves.
struct CerealForm {
    Point foot{200, 344};
    double height = 290;
    /// Length of the ear's part of each stem.
    double headLength = 130;
    /// Stand of the tips to the side, one for each stem.
    std::vector<double> stems = {-70, 70, 0};
    /// How far the heads nod over, in units.
    double nod = 0;
    double radius = 1.9;
    Palette palette = palettes::straw;
    Palette leafPalette = palettes::oldleaf;
    int leaves = 3;
    double leafLength = 96;
    double leafWidth = 4.6;
    /// Draws the head along its spine (base to tip).
    std::function<void(Plate&, const Path& spine)> head;
};
void cereal(Plate& plate, const CerealForm& form);

/// A long strap leaf that arches over: grasses, reeds, maize, leeks.
void strapLeaf(Plate& plate, Point base, double degrees, double length, double width, double droop,
               const Palette& palette = palettes::oldleaf);

} // namespace tambrelle::engraver
