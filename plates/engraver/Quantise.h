#pragma once

#include "plates/engraver/Composition.h"

#include <array>

namespace tambrelle::engraver {

/// A picture of at most 256 colours.
struct IndexedPicture {
    int width = 0;
    int height = 0;
    std::vector<std::array<unsigned char, 3>> palette;
    std::vector<unsigned char> indices;
};

/// The picture in at most `colours` colours (2 ... 256); pure white is always one of them, and white stays
/// white.
IndexedPicture quantise(const Picture& picture, int colours);

} // namespace tambrelle::engraver
