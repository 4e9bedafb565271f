#pragma once

#include "plates/engraver/Plate.h"
#include "plates/engraver/Profile.h"

namespace tambrelle::engraver {

/// A leaf's edge. `count` teeth or lobes to a side; `depth` as a share of the half width.
struct Margin {
    enum class Kind { entire, serrate, dentate, crenate, lobed, wavy } kind = Kind::entire;
    double count = 0;
    double depth = 0;
    double operator()(double q) const;
};
constexpr Margin entire() {
    return {};
}
constexpr Margin serrate(double count, double depth = 0.17) {
    return {Margin::Kind::serrate, count, depth};
}
constexpr Margin dentate(double count, double depth = 0.2) {
    return {Margin::Kind::dentate, count, depth};
}
constexpr Margin crenate(double count, double depth = 0.12) {
    return {Margin::Kind::crenate, count, depth};
}
constexpr Margin lobed(double count, double depth = 0.42) {
    return {Margin::Kind::lobed, count, depth};
}
constexpr Margin wavy(double count, double depth = 0.08) {
    return {Margin::Kind::wavy, count, depth};
}

/// One blade, drawn with its midrib along a spine.
struct LeafForm {
    /// Half the breadth, in units.
    double width = 14;
    /// Half widths from base to tip, 1 the widest: a list or one of shapes::.
    Profile shape = shapes::ovate;
    Margin margin = {};
    Palette palette = palettes::leaf;
    /// Side veins to a half; how far they slant forward (share of the length). 0 veins: none drawn.
    double veins = 6;
    double slant = 0.28;
    /// Parallel-veined (grass, lily, plantain): lines run from base to tip.
    bool parallel = false;
    /// Breadth of the right and left halves (seen from base to tip) as shares of `width`: foreshortening.
    double right = 1;
    double left = 1;
    /// The lit half: +1 right, -1 left, 0 whichever faces the light.
    int lit = 0;
    double tone = 0;
    double contour = 0.7;
    double midrib = 0.9;
    double spacing = 1.9;
    double coverage = 0.45;
    /// Puckering between the veins (0.14; cabbage and primrose 0.3).
    double pucker = 0.14;
    double shade = 0.30;
    double halo = 0.7;
};

/// Draws a leaf along the spline through `spine`, base first. Gives its outline.
Path leaf(Plate& plate, const Path& spine, const LeafForm& form = {});

/// A small leaf, leaflet, sepal, bract or feather: two tones, a midrib, few lines. `bend` is the sag to the
/// right.
struct LeafletForm {
    double width = 3;
    Palette palette = palettes::leaf;
    Profile shape = shapes::lance;
    double tone = 0.15;
    double contour = 0.45;
    double bend = 0;
    bool hatched = true;
    bool midrib = true;
    double shade = 0.15;
    double halo = 0.3;
};
Path leaflet(Plate& plate, Point base, Point tip, const LeafletForm& form = {});

} // namespace tambrelle::engraver
