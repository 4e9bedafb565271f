#pragma once

#include "plates/engraver/Vessel.h"

#include <optional>
#include <vector>

namespace tambrelle::engraver {

/// A vessel of staves held by hoops: vat, tub, barrel, bucket, churn.
struct CaskForm {
    double direction = -90;
    double tilt = 0.3;
    int staves = 30;
    /// Where hoops lie (0 ... 1 along the axis) and how broad they are, in units.
    std::vector<double> hoops = {0.14, 0.50, 0.86};
    double hoopBreadth = 8;
    Palette palette = palettes::wood;
    Palette hoopPalette = palettes::iron;
};
/// `height` is measured on the plate, from the base's centre to the far end's.
LatheSurface cask(Plate& plate, Point base, double height, const Profile& radius, const CaskForm& form = {});

/// One hoop or band about what was turned, `breadth` units wide; with rivets if wanted.
struct HoopForm {
    double breadth = 8;
    Palette palette = palettes::iron;
    bool rivets = true;
};
void hoop(Plate& plate, const LatheSurface& surface, double u, const HoopForm& form = {});

/// The closed far end: boards within the staves' chime. `degrees`: how the boards run on the plate.
struct HeadForm {
    double chime = 5;
    Palette palette = palettes::wood;
    int boards = 5;
    double degrees = -80;
    double tone = 0.35;
};
void caskHead(Plate& plate, const LatheSurface& surface, const HeadForm& form = {});

} // namespace tambrelle::engraver
