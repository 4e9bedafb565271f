#pragma once

#include "plates/engraver/Plate.h"
#include "plates/engraver/Profile.h"

namespace tambrelle::engraver {

/// A once- or twice-cut fern frond along a spine; `breadth` is the reach of its longest pinnae.
struct FernForm {
    double breadth = 34;
    int pinnae = 18;
    /// Lobes to each side of a pinna; 0: the pinnae are whole.
    int lobes = 8;
    Palette palette = palettes::leaf;
    Palette stalk = palettes::stem;
    double stalkShare = 0.16;
    double radius = 1.6;
};
void fern(Plate& plate, const Path& spine, const FernForm& form = {});
/// A young frond still coiled, its stalk from `foot`.
void crozier(Plate& plate, Point foot, Point top, double radius, const Palette& palette = palettes::leafy);

/// A gilled mushroom standing at `foot`.
struct MushroomForm {
    /// Radius and height of the cap; height and radius of the stem.
    double cap = 62;
    double capHeight = 46;
    double stem = 80;
    double stemRadius = 17;
    Palette palette = palettes::cream;
    Palette gills = palettes::pink;
    /// How far the cap shows its underside (0.05 ... 0.4).
    double tilt = 0.26;
    bool ring = true;
    /// Flat dark scales on the cap.
    int scales = 0;
};
void mushroom(Plate& plate, Point foot, const MushroomForm& form = {});

/// A cushion of moss with capsules on fine stalks.
void mossCushion(Plate& plate, Point centre, double width, double height, int capsules,
                 const Palette& palette = palettes::leafy);
/// A crusty rosette of lichen with curled lobes.
void lichenRosette(Plate& plate, Point centre, double radius, const Palette& palette = palettes::greygreen);

} // namespace tambrelle::engraver
