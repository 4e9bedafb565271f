#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tambrelle {

/// Sound of one channel.
struct Recording {
    double rate = 0;            ///< samples a second
    std::vector<float> samples; ///< -1 to 1 at full scale
};

/// A note that a listener would write down.
struct HeardNote {
    int key = 0;       ///< MIDI key; 60 is the middle C
    double start = 0;  ///< seconds from the beginning
    double length = 0; ///< seconds
};

/// Decodes a sound file with ffmpeg, mixed down to one channel. Without samples when it can't be decoded.
Recording decode(const std::filesystem::path& file);

/// The leading melody of a recording in the order heard, knowing nothing of what was written. It listens
/// between D4 and B5.
std::vector<HeardNote> transcribe(const Recording& recording);

/// The note's name, "Bb4".
std::string keyName(int key);

} // namespace tambrelle
