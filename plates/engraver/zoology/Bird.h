#pragma once

#include "plates/engraver/Body.h"
#include "plates/engraver/Profile.h"
#include "plates/engraver/zoology/Eye.h"

namespace tambrelle::engraver {

/// Settings of a bird's body for Body::engrave(): lines that run round it, fine and few.
Body::Style plumed(std::vector<Palette> palettes);
/// The same for a dark bird, which keeps no paper white.
Body::Style darkPlumed(std::vector<Palette> palettes);

/// One feather from root to tip; `width` is half its breadth.
struct FeatherForm {
    Palette palette = palettes::grey;
    double width = 5;
    double tone = 0.2;
    double bend = 0;
    double contour = 0.45;
};
void feather(Plate& plate, Point root, Point tip, const FeatherForm& form = {});

/// A folded wing seen from the side, its tip to the right: primaries under secondaries under rows of coverts.
struct WingForm {
    /// Direction in which it lies, degrees.
    double degrees = 8;
    /// From the shoulder to the tips of the primaries, and from its upper to its lower edge, in units.
    double length = 120;
    double depth = 44;
    Palette coverts = palettes::grey;
    Palette secondaries = palettes::grey;
    Palette primaries = palettes::grey;
    double tone = 0;
    /// Another palette for one feather of a covert row (0 the longest) or of the secondaries (row -1);
    /// absent: as above.
    std::function<std::optional<Palette>(int row, int feather)> marked = {};
};
void wing(Plate& plate, Point shoulder, const WingForm& form = {});

/// Tail feathers spread from a root between two directions in degrees; drawn from the outside in.
struct FanForm {
    double from = -20;
    double to = 20;
    int feathers = 7;
    double length = 46;
    double width = 7;
    Palette palette = palettes::grey;
    double tone = 0.3;
    /// Cross bars to a feather and their colour; 0 for none.
    int bars = 0;
    Colour bar = sepia;
};
void tailFan(Plate& plate, Point root, const FanForm& form);

/// Shank and toes of a standing bird: from where it leaves the feathers to the ground.
struct BirdLegForm {
    Palette palette = palettes::yellow;
    /// Radius of the shank at its lower end, in units.
    double radius = 2.5;
    /// Length of the middle toe.
    double toe = 20;
    bool webbed = false;
    /// Where the heel joint bends, from the straight line, in units.
    double bend = 3;
};
void birdLeg(Plate& plate, Point top, Point foot, const BirdLegForm& form = {});

/// A bill in profile: upper and lower edge as one outline, the line of the gape, and the nostril if it
/// shows.
struct BillForm {
    Palette palette = palettes::horn;
    double tone = 0;
};
void bill(Plate& plate, const Path& outline, const Path& gape, std::optional<Point> nostril,
          const BillForm& form = {});

/// A round eye without lids; `ring` colours the iris.
void birdEye(Plate& plate, Point centre, double radius, Colour iris);

} // namespace tambrelle::engraver
