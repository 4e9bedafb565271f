#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tambrelle {

/// One scalar value read from UTF-8 and the bytes that it took.
struct Utf8Scalar {
    char32_t value;
    std::size_t length;
};

/// The first scalar of a text that is not empty. A byte that begins no well-formed sequence reads as U+FFFD
/// of length 1.
Utf8Scalar firstScalar(std::string_view text);

/// Appends `value`, a Unicode scalar up to U+10FFFF, in its one to four bytes.
void appendScalar(std::string& text, char32_t value);

} // namespace tambrelle
