#pragma once

#include "plates/engraver/Plate.h"
#include "plates/engraver/Profile.h"
#include "plates/engraver/Tube.h"

namespace tambrelle::engraver {

/// A solid of revolution: roots, bulbs, fruit, pots, drums, turned wood.
struct LatheForm {
    /// Screen direction of the axis from the base, degrees: -90 stands up, 90 hangs.
    double direction = -90;
    /// Sine of the axis's lean to the viewer (-0.9 ... 0.9): its far end shows its top when positive.
    double tilt = 0.3;
    Palette palette = palettes::root;
    /// across: parallels round the axis; along: meridians.
    Lines lines = Lines::across;
    /// Meridians and parallels both, the second only in deep shade.
    bool crossed = false;
    double spacing = 2.0;
    double coverage = 0.5;
    double hatchFrom = 0.25;
    double tone = 0;
    double contour = 0.75;
    double shade = 0.30;
    double halo = 0.7;
    double highlight = 0.10;
    /// Ribs of a melon or pot: how many, and how deep as a share of the radius.
    int ribs = 0;
    double ribDepth = 0.1;
    /// Changes the tone at (u along the axis 0...1, angle round it in radians).
    std::function<double(double u, double angle, double tone)> texture = {};
    /// Changes the colour likewise (blush, stripes).
    std::function<Colour(double u, double angle, double tone, Colour colour)> tint = {};
};

/// What was turned, to place things upon it.
struct LatheSurface {
    Path outline;
    Point base;
    Vector3 axis, side, front;
    double length = 0;
    Profile radius = 1.0;
    /// The place on the surface at u in 0...1 along the axis and an angle round it in degrees: 0 is the
    /// right-hand edge of a standing one, 90 faces the viewer, 180 is the left-hand edge.
    Point at(double u, double angleDegrees, double lift = 0) const;
    /// How far that place faces the viewer: > 0 seen, 1 square on.
    double facing(double u, double angleDegrees) const;
    Vector3 normalAt(double u, double angleDegrees) const;
    double toneAt(double u, double angleDegrees) const;
    /// The ring round the axis at u between two angles in degrees.
    Path ring(double u, double from = 0, double to = 360, double lift = 0) const;
};

/// Turns a solid with its base's centre at `base`; `radius` runs along the axis of `length` units.
LatheSurface lathe(Plate& plate, Point base, double length, const Profile& radius,
                   const LatheForm& form = {});

struct BallForm {
    Palette palette = palettes::red;
    /// Direction of the stalk end, degrees; meridians run from there.
    double direction = -70;
    /// Length along that axis over breadth.
    double squash = 1;
    double tone = 0;
    double spacing = 1.8;
    double coverage = 0.5;
    Lines lines = Lines::along;
    double contour = 0.7;
    double shade = 0.30;
    double halo = 0.7;
    double highlight = 0.12;
};

/// A ball or egg: berries, eyes, drops. Gives its outline.
Path ball(Plate& plate, Point centre, double radius, const BallForm& form = {});

} // namespace tambrelle::engraver
