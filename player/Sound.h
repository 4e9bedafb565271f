#pragma once

#include <cstdint>
#include <vector>

namespace tambrelle {

/// Decoded sound.
struct Sound {
    static constexpr int rate = 44100; ///< samples of each channel a second
    static constexpr int channels = 2; ///< interleaved, left first

    std::vector<float> samples; ///< -1 to 1 at full scale
};

} // namespace tambrelle
