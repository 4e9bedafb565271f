#include "core/LowerCase.h"

#include "core/Utf8.h"

namespace tambrelle {
namespace {

constexpr bool isWithin(char32_t value, char32_t low, char32_t high) {
    return low <= value && value <= high;
}

constexpr char32_t lowerCaseScalar(char32_t value) {
    constexpr char32_t multiplicationSign = 0xD7;
    if (isWithin(value, U'A', U'Z') || (isWithin(value, 0xC0, 0xDE) && value != multiplicationSign))
        return value + 0x20;
    if (value == 0x178) // Ÿ, whose small letter is in Latin-1
        return 0xFF;
    // In Latin Extended-A capitals and small letters alternate, the capital at the even or the odd place.
    if (isWithin(value, 0x100, 0x137) || isWithin(value, 0x14A, 0x177))
        return value | 1;
    if (isWithin(value, 0x139, 0x148) || isWithin(value, 0x179, 0x17E))
        return value + value % 2;
    return value;
}

} // namespace

std::string lowerCase(std::string_view text) {
    constexpr char32_t dottedCapitalI = 0x130;
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const auto [value, length] = firstScalar(text);
        if (value == U'\uFFFD') // perhaps malformed: the bytes as they are
            result += text.substr(0, length);
        else if (value == dottedCapitalI)
            result += "i\u0307";
        else
            appendScalar(result, lowerCaseScalar(value));
        text.remove_prefix(length);
    }
    return result;
}

} // namespace tambrelle
