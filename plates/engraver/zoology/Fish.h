#pragma once

#include "plates/engraver/Profile.h"
#include "plates/engraver/Relief.h"
#include "plates/engraver/zoology/Eye.h"

namespace tambrelle::engraver {

/// A fish seen from its left side, head to the left unless its spine says otherwise. Everything on it is
/// placed in its own units: x from the snout along the spine, y from the spine, negative towards the back.
class Fish {
public:
    /// `back` and `belly` are the distances of the outline from the spine, snout to tail's root, in units.
    Fish(const Path& spine, const Profile& back, const Profile& belly);

    double length() const { return length_; }
    Point at(double x, double y) const;
    Path path(const Path& onFish) const;
    Path outline() const;
    /// Where a place of the plate lies on the fish: x as above, y 0 ... 1 from the back to the belly.
    Point locate(Point p) const;
    double backAt(double x) const { return back_(x / length_); }
    double bellyAt(double x) const { return belly_(x / length_); }

    struct Skin {
        Palette back = palettes::oldleaf;
        Palette flank = palettes::horn;
        Palette belly = palettes::chalk;
        /// Shares of the height at which back melts into flank and flank into belly.
        double backTo = 0.28;
        double bellyFrom = 0.72;
        double coverage = 0.42;
        double hatchFrom = 0.4;
        double highlight = 0.10;
    };
    ReliefSurface engrave(Plate& plate, const Skin& skin) const;

    /// Overlapping scales behind the gill cover at `from` up to `to` (x); `size` in units.
    void scales(Plate& plate, const ReliefSurface& skin, double from, double to, double size,
                double weight = 1) const;
    /// Gill cover with its rim at x, and the cheek before it.
    void gillCover(Plate& plate, double x) const;
    /// The line along the flank from x to the tail at the share `height` (0 back ... 1 belly).
    void lateralLine(Plate& plate, double from, double height = 0.45) const;

private:
    static constexpr std::size_t count = 120;
    Path spine_, normals_;
    Profile back_, belly_;
    double length_ = 0;
};

/// A fin: its outline and the lines between which its rays run, all on the fish.
struct Fin {
    Path outline;
    Point rootFrom, rootTo;
    Point tipFrom, tipTo;
    int rays = 12;
    Palette palette = palettes::oldleaf;
    double tone = 0.36;
};
void fin(Plate& plate, const Fish& fish, const Fin& form);

/// A fish's eye: flat, round, with a bright ring.
void fishEye(Plate& plate, Point centre, double radius, Colour iris);

} // namespace tambrelle::engraver
