#include "player/WaveHeader.h"

namespace tambrelle {

bool promisesMoreThanFile(std::string_view header, std::uintmax_t fileSize) {
    constexpr std::size_t preamble = 8;                // the name and the size, which the size does not count
    constexpr std::uint32_t unknownSize = 0xFFFF'FFFF; // written by programs that stream
    if (header.size() < waveHeaderSize || !header.starts_with("RIFF"))
        return false;
    std::uint32_t size = 0;
    for (std::size_t i = preamble; i-- > preamble / 2;)
        size = (size << 8U) | static_cast<unsigned char>(header[i]);
    return size != unknownSize && std::uintmax_t{size} + preamble > fileSize;
}

} // namespace tambrelle
