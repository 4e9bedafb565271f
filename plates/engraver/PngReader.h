#pragma once

#include "plates/engraver/Composition.h"

#include <cstdint>
#include <filesystem>

namespace tambrelle::engraver {

/// The pixels of a PNG file. Throws std::runtime_error when it can't be read.
Picture readPng(const std::filesystem::path& path);

/// A picture's fingerprint (FNV-1a over size and pixels): independent of how the file is packed.
std::uint64_t fingerprint(const Picture& picture);

} // namespace tambrelle::engraver
