#include "core/Utf8.h"

namespace tambrelle {

Utf8Scalar firstScalar(std::string_view text) {
    constexpr Utf8Scalar malformed{U'\uFFFD', 1};
    const auto byteAt = [text](std::size_t index) -> char32_t {
        return static_cast<unsigned char>(text[index]);
    };

    const char32_t lead = byteAt(0);
    if (lead < 0x80)
        return {lead, 1};
    std::size_t length = 0;
    char32_t value = 0;
    char32_t smallest = 0; // below it the sequence is longer than it need be
    if (lead >= 0xC2 && lead < 0xE0) {
        length = 2;
        value = lead & 0x1F;
        smallest = 0x80;
    } else if (lead >= 0xE0 && lead < 0xF0) {
        length = 3;
        value = lead & 0x0F;
        smallest = 0x800;
    } else if (lead >= 0xF0 && lead < 0xF5) {
        length = 4;
        value = lead & 0x07;
        smallest = 0x10000;
    }
    if (length == 0 || text.size() < length)
        return malformed;
    for (std::size_t index = 1; index < length; ++index) {
        if ((byteAt(index) & 0xC0) != 0x80)
            return malformed;
        value = value << 6 | (byteAt(index) & 0x3F);
    }
    const bool isSurrogate = value >= 0xD800 && value < 0xE000;
    if (value < smallest || value > 0x10FFFF || isSurrogate)
        return malformed;
    return {value, length};
}

void appendScalar(std::string& text, char32_t value) {
    const auto appendByte = [&text](char32_t byte) {
        text += static_cast<char>(static_cast<unsigned char>(byte));
    };
    if (value < 0x80) {
        appendByte(value);
        return;
    }
    if (value < 0x800) {
        appendByte(0xC0 | value >> 6);
    } else {
        if (value < 0x10000) {
            appendByte(0xE0 | value >> 12);
        } else {
            appendByte(0xF0 | value >> 18);
            appendByte(0x80 | (value >> 12 & 0x3F));
        }
        appendByte(0x80 | (value >> 6 & 0x3F));
    }
    appendByte(0x80 | (value & 0x3F));
}

} // namespace tambrelle
