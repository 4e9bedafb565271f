#pragma once

#include "player/Sound.h"

#include <filesystem>
#include <stdexcept>

namespace tambrelle {

/// Why a file can't be played, in words for the user.
class SoundFileError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Decodes a file from end to end, so that a damaged one is known before any of it is heard. Throws
/// SoundFileError when it can't be opened or decoded, holds less sound than it promises, or more than ten
/// minutes.
Sound readSoundFile(const std::filesystem::path& file);

} // namespace tambrelle
