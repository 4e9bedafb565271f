#pragma once

#include "plates/engraver/Quantise.h"

#include <filesystem>

namespace tambrelle::engraver {

/// The largest file a plate may have, in bytes.
inline constexpr std::size_t largestFile = 90UL * 1024;

/// A palette PNG without time stamps or other marks.
std::vector<unsigned char> encodePng(const IndexedPicture& picture);
/// A true-colour PNG, for proofs.
std::vector<unsigned char> encodePng(const Picture& picture);
/// Encoded with as many colours as fit into `largestFile`.
std::vector<unsigned char> encodePlate(const Picture& picture);
/// Writes to a new file beside it and renames, so that a reader never sees half a picture. Throws
/// std::runtime_error when the file can't be written.
void writeFile(const std::filesystem::path& path, const std::vector<unsigned char>& bytes);

} // namespace tambrelle::engraver
