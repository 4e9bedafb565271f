#pragma once

#include <cstdint>
#include <string_view>

namespace tambrelle {

/// How many bytes a RIFF file starts with before anything else: its name, its size and its kind.
inline constexpr std::size_t waveHeaderSize = 12;

/// Whether `header`, the first bytes of a file of `fileSize` bytes, is that of a RIFF file which promises
/// more bytes than the file holds. Decoders play what there is of such a file and take it for the whole.
bool promisesMoreThanFile(std::string_view header, std::uintmax_t fileSize);

} // namespace tambrelle
