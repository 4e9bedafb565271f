#pragma once

#include "plates/engraver/Composition.h"

#include <vector>

namespace tambrelle::engraver {

/// What the panel lays a plate on.
enum class SheetGround { day, night };

/// How a contact sheet shows its plates.
struct SheetForm {
    SheetGround ground = SheetGround::day;
    /// Width of one plate in pixels; its height follows.
    int plateWidth = 288;
    int columns = 6;
    bool grey = false;
};

/// The plates in rows, each multiplied over the panel's field, within its frame.
Picture contactSheet(const std::vector<Picture>& plates, const SheetForm& form);

} // namespace tambrelle::engraver
