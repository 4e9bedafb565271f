#pragma once

#include <cstddef>
#include <string_view>

namespace tambrelle {

/// The first `count` user-perceived characters of a UTF-8 text, or the whole text where it has fewer. Follows
/// the rules for extended grapheme clusters of Unicode's annex 29 for combining marks of the scripts of
/// Europe, variation selectors, emoji with skin tones and tags, emoji joined by U+200D, and flags; each byte
/// of malformed UTF-8 counts as one character.
std::string_view graphemePrefix(std::string_view text, std::size_t count);

} // namespace tambrelle
