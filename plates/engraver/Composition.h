#pragma once

#include "plates/engraver/Plate.h"

namespace tambrelle::engraver {

/// A finished picture, 8 bits a channel, rows from the top.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<unsigned char> rgb;
};

/// How a plate is set on its sheet. Sizes in units of the 288 x 260 sheet.
struct Composition {
    double marginX = 13;
    double marginY = 12;
    /// Small subjects are enlarged by this at most.
    double largest = 1.15;
    /// Pixels a unit of the sheet.
    int pixels = 2;
    int sheetWidth = 288;
    int sheetHeight = 260;
    /// Unevenness of the pigment.
    double granulation = 0.08;
};

/// Lays ink over wash, lets the wash bleed a little, cuts the sheet to the subject and scales it down.
Picture compose(const Plate& plate, const Composition& how = {});

/// Whether something was drawn farther beyond the surface's edge than is kept, so that the picture would show
/// it cut off.
bool cutOff(const Plate& plate);

} // namespace tambrelle::engraver
