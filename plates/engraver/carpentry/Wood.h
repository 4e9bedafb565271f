#pragma once

#include "plates/engraver/Face.h"
#include "plates/engraver/Tube.h"

namespace tambrelle::engraver {

/// A pole, handle or beam of round timber, hatched along its grain. Gives the spine's curve.
Path pole(Plate& plate, const Path& spine, const Profile& radius, const Palette& palette = palettes::wood);

/// A pole with a sawn end that faces the viewer at the last point of its spine.
Path sawnPole(Plate& plate, const Path& spine, const Profile& radius,
              const Palette& palette = palettes::wood);

/// A flat board of the given tone; its grain runs along the outline's first edge.
void plank(Plate& plate, const Path& outline, double tone, const Palette& palette = palettes::wood);

/// A square-edged bar between two points, `breadth` units wide, seen as one flat side.
void bar(Plate& plate, Point from, Point to, double breadth, double tone,
         const Palette& palette = palettes::wood);

/// A parallel projection: where the three directions of a room fall on the plate.
struct Axes {
    Point origin{200, 300};
    Point right{1, 0};
    Point away{0.45, -0.32};
    Point up{0, -1};
    Point at(Vector3 p) const { return origin + right * p.x + away * p.y + up * p.z; }
};

/// A squared timber or stone: x to the right, y away from the viewer, z up.
struct BlockForm {
    Palette palette = palettes::wood;
    double tone = 0;
    double grain = 0.12;
    double shade = 0.25;
    double contour = 0.8;
};

/// Draws the three sides of a block that are seen, between two opposite corners (`near` the lesser in each
/// coordinate).
void block(Plate& plate, const Axes& axes, Vector3 near, Vector3 far, const BlockForm& form = {});

/// Two rails, each from its foot to its head, with round rungs between them.
struct LadderForm {
    std::size_t rungs = 7;
    double rail = 4;
    double rung = 2.6;
};
void ladder(Plate& plate, Point footLeft, Point headLeft, Point footRight, Point headRight,
            const LadderForm& form = {});

} // namespace tambrelle::engraver
