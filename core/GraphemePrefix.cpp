#include "core/GraphemePrefix.h"

#include "core/Utf8.h"

#include <algorithm>
#include <array>

namespace tambrelle {
namespace {

struct Range {
    char32_t first;
    char32_t last;
};

template <std::size_t size>
bool isIn(const std::array<Range, size>& ranges, char32_t value) {
    return std::any_of(ranges.begin(), ranges.end(),
                       [value](const Range& range) { return range.first <= value && value <= range.last; });
}

constexpr char32_t zeroWidthJoiner = 0x200D;

// What never begins a character of its own.
constexpr std::array<Range, 11> extenders{{
    {0x0300, 0x036F},   // combining diacritical marks
    {0x0483, 0x0489},   // Cyrillic
    {0x1AB0, 0x1ACE},   // combining diacritical marks extended
    {0x1DC0, 0x1DFF},   // combining diacritical marks supplement
    {0x200C, 0x200D},   // zero-width non-joiner and joiner
    {0x20D0, 0x20F0},   // combining marks for symbols, such as the keycap
    {0xFE00, 0xFE0F},   // variation selectors
    {0xFE20, 0xFE2F},   // combining half marks
    {0x1F3FB, 0x1F3FF}, // skin tones
    {0xE0020, 0xE007F}, // tags
    {0xE0100, 0xE01EF}, // variation selectors supplement
}};

// What joins on to an emoji before it across a zero-width joiner.
constexpr std::array<Range, 6> pictographs{{
    {0x00A9, 0x00A9},
    {0x00AE, 0x00AE},
    {0x203C, 0x2049},
    {0x2122, 0x2BFF},
    {0x3030, 0x3299},
    {0x1F000, 0x1FAFF},
}};

constexpr bool isRegionalIndicator(char32_t value) {
    return value >= 0x1F1E6 && value <= 0x1F1FF;
}

bool isExtender(char32_t value) {
    return isIn(extenders, value);
}

bool isPictograph(char32_t value) {
    return isIn(pictographs, value) && !isRegionalIndicator(value) && !isExtender(value);
}

bool isControl(char32_t value) {
    return value < 0x20 || (value >= 0x7F && value < 0xA0);
}

// The bytes of the first user-perceived character of a text that is not empty.
std::size_t firstGraphemeLength(std::string_view text) {
    const auto [first, firstLength] = firstScalar(text);
    std::size_t length = firstLength;
    if (first == U'\r' && text.substr(length).starts_with('\n'))
        return length + 1;
    if (isControl(first))
        return length;

    bool firstOfFlag = isRegionalIndicator(first);
    bool emojiSoFar = isPictograph(first); // an emoji and nothing but extenders after it
    char32_t previous = first;
    while (length < text.size()) {
        const auto [value, valueLength] = firstScalar(text.substr(length));
        const bool joinsEmoji = emojiSoFar && previous == zeroWidthJoiner && isPictograph(value);
        const bool endsFlag = firstOfFlag && isRegionalIndicator(value);
        if (!isExtender(value) && !joinsEmoji && !endsFlag)
            break;
        firstOfFlag = false;
        previous = value;
        length += valueLength;
    }
    return length;
}

} // namespace

std::string_view graphemePrefix(std::string_view text, std::size_t count) {
    std::size_t length = 0;
    for (; count > 0 && length < text.size(); --count)
        length += firstGraphemeLength(text.substr(length));
    return text.substr(0, length);
}

} // namespace tambrelle
