#pragma once

#include "plates/engraver/Plate.h"
#include "plates/engraver/Profile.h"
#include "plates/engraver/Sheet.h"

namespace tambrelle::engraver {

/// A corolla of like petals about an axis (rose, buttercup, crocus, lily ...), in space.
struct FlowerForm {
    int petals = 5;
    double length = 14;
    /// Half a petal's breadth.
    double width = 6;
    /// Degrees of a petal from the axis at base and tip: 10, 20 a goblet; 60, 85 open; 80, 95 flat; 150, 175
    /// reflexed.
    double baseAngle = 60;
    double tipAngle = 85;
    Profile shape = shapes::obovate;
    Palette palette = palettes::rose;
    /// Fades in towards the tips.
    std::optional<Palette> tips = std::nullopt;
    double cup = 1.8;
    double curl = 0;
    double notch = 0;
    double ruffle = 0;
    double ruffleTurns = 5;
    /// Rings of petals, each turned by half a step and a little shorter.
    int rings = 1;
    /// Seen from: 0 the side, 90 straight into it.
    double tilt = 45;
    /// Turn about the axis; absent: by chance.
    std::optional<double> roll = std::nullopt;
    /// Length of the k-th petal as a share (violets, pansies); absent: all alike.
    std::function<double(int k)> lengthOf = {};
    /// Palette of the k-th petal; absent: `palette`.
    std::function<Palette(int k)> paletteOf = {};
    /// Tone on a petal (u base to tip, v -1 to 1), replacing the darker base: veins, eyes, stripes.
    std::function<double(double u, double v)> marking = {};
    /// Corolla tube behind the petals: length (0: none) and radius; a spur behind. In units.
    double tube = 0;
    double tubeRadius = 2.5;
    double spur = 0;
    /// A round eye in the middle: radius, 0 for none.
    double eye = 0;
    Palette eyePalette = palettes::yellow;
    int stamens = 0;
    /// Share of the petal's length.
    double stamenLength = 0.45;
    Palette antherPalette = palettes::yellow;
    /// Green sepals seen behind.
    int sepals = 0;
    double washLift = 0.10;
    double ambient = -0.04;
};
/// Draws the flower with its base at `at`; its axis points in the direction `degrees`. `scale` sizes all of
/// it.
void flower(Plate& plate, Point at, double degrees, const FlowerForm& form, double scale = 1);

/// A bell, urn or funnel with lobes at its mouth; `degrees` is the direction in which the mouth looks.
struct BellForm {
    double length = 20;
    double radius = 9;
    Profile shape = {0.15, 0.70, 0.9, 0.95, 1.15};
    int lobes = 5;
    double lobeDepth = 0.35;
    Palette palette = palettes::blue;
    /// How much of the mouth is seen, degrees.
    double tilt = 18;
    int sepals = 0;
};
void bell(Plate& plate, Point at, double degrees, const BellForm& form, double scale = 1);

/// Pea flower from its side, base (calyx) at `at`: the standard rises across the axis, wings and keel lie
/// along it. `size` is the standard's height and the wings' length; seen with the axis to the right, `side`
/// +1 has the standard above, -1 below.
void peaFlower(Plate& plate, Point at, double degrees, double size, const Palette& palette, int side = 1,
               std::optional<Palette> wings = std::nullopt);
/// Two-lipped flower of the mint kin in its calyx.
void lipFlower(Plate& plate, Point at, double degrees, double size, const Palette& palette, int side = 1);
/// A tiny flower of a cluster, a few units across: round lobes and a centre.
void floret(Plate& plate, Point at, double radius, const Palette& palette, int petals = 5,
            Colour centre = 0xD8C25A);

/// A daisy head: rays about a disc.
struct CompositeForm {
    int rays = 20;
    /// Of a ray; half its breadth.
    double length = 24;
    double width = 3;
    Profile shape = {0.5, 0.8, 0.95, 1, 0.9, 0};
    Palette palette = palettes::whiteflower;
    std::optional<Palette> tips = std::nullopt;
    int rings = 1;
    /// Radius of the disc; 0: all rays (dandelion, chicory).
    double disc = 8;
    double dome = 0.25;
    Palette discPalette = palettes::yellow;
    double baseAngle = 66;
    double tipAngle = 88;
    double notch = 0.05;
    double tilt = 55;
    /// Green bracts under the head: radius of the involucre, 0 none.
    double involucre = 6;
    double washLift = 0.10;
};
void compositeHead(Plate& plate, Point at, double degrees, const CompositeForm& form, double scale = 1);

/// Overlapping scales on a body of revolution: involucres, cones, hops, artichokes, buds.
struct ScalesForm {
    double radius = 12;
    double length = 26;
    Profile shape = {0.55, 0.95, 1, 0.85, 0.5};
    int rows = 6;
    int perRow = 7;
    /// Half breadth and length of a scale; 0: from the rows.
    double scaleWidth = 0;
    double scaleLength = 0;
    Profile scaleShape = shapes::ovate;
    Palette palette = palettes::leaf;
    double tone = 0.05;
    /// How far scale tips stand out at the edge, degrees.
    double spread = 20;
    /// A spine at each tip.
    bool spines = false;
    /// Scales of lower rows lie over those above (buds, artichokes); false: the other way round.
    bool tipFirst = true;
};
/// Base at `at`, axis in the direction `degrees`.
void scales(Plate& plate, Point at, double degrees, const ScalesForm& form, double scale = 1);

/// A thistle-like head: scaly involucre and a brush of florets.
struct ThistleForm {
    double radius = 9;
    double length = 20;
    double brush = 16;
    double brushSpread = 70;
    Palette palette = palettes::purple;
    Palette scalePalette = palettes::leaf;
    bool spines = true;
};
void thistleHead(Plate& plate, Point at, double degrees, const ThistleForm& form, double scale = 1);

/// A ball or dome of many small florets (clover, onion, burnet): `petal` is the length of one.
struct GlobeForm {
    double radius = 18;
    double petal = 6;
    double petalWidth = 1.8;
    int count = 120;
    /// Height over breadth.
    double squash = 1;
    Palette palette = palettes::pink;
    /// Little stars on stalks (onions) instead of pointed tubes.
    bool stars = false;
    double tone = 0.1;
};
void globeHead(Plate& plate, Point at, double degrees, const GlobeForm& form, double scale = 1);

} // namespace tambrelle::engraver
