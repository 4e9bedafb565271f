#pragma once

#include "plates/engraver/minerals/Stone.h"

namespace tambrelle::engraver {

/// A box seen from above over one of its upright edges, in parallel projection.
struct Box {
    /// Foot of the upright edge that stands nearest.
    Point front;
    /// From there along the foot of the left-hand and of the right-hand face.
    Point left{-80, -20};
    Point right{60, -26};
    double height = 60;
    /// Share by which the top is smaller than the foot: 0.2 is an ingot.
    double taper = 0;

    /// The eight corners: `l` and `r` along the left and the right foot edge, `up` the height, each in 0...1.
    Point at(double l, double r, double up) const;
    Path leftFace() const;
    Path rightFace() const;
    Path top() const;
};

/// Smooth faces: bricks, ingots, cut blocks.
struct CutBlockForm {
    Palette palette = palettes::stone;
    double leftTone = 0.34;
    double rightTone = 0.66;
    double topTone = 0.12;
    double spacing = 2.0;
    double contour = 0.75;
    double shade = 0.30;
    double grain = 0;
};
void cutBlock(Plate& plate, const Box& box, const CutBlockForm& form = {});

/// A layer of a rough block, counted from the foot.
struct Bed {
    /// Upper limit, as a share of the block's height.
    double to = 1;
    Palette palette = palettes::stone;
    /// Height over the neighbours, in units: hard beds stand proud.
    double proud = 0;
};
/// Broken faces with layers: earth, sandstone, marl, peat.
struct RoughBlockForm {
    std::vector<Bed> beds{Bed{}};
    std::uint64_t seed = 1;
    /// Height of the grain and the breadth of its largest bumps, in units; bumps are `flat` times as long as
    /// high.
    double rough = 1.4;
    double grain = 14;
    double flat = 1;
    /// Unevenness of the edges and of the limits between beds, in units.
    double ragged = 1.4;
    double wavy = 1.5;
    double leftTone = -0.06;
    double rightTone = 0.26;
    double topTone = -0.14;
    double spacing = 2.1;
    double coverage = 0.5;
    double crossFrom = 0.66;
    double shade = 0.35;
};
struct RoughBlock {
    ReliefSurface left, right, top;
};
RoughBlock roughBlock(Plate& plate, const Box& box, const RoughBlockForm& form = {});

} // namespace tambrelle::engraver
