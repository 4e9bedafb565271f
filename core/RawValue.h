#pragma once

#include "core/Precondition.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace tambrelle {

/// One case of an enumeration that persists by a string.
template <typename Enumeration>
struct RawCase {
    Enumeration value;
    std::string_view rawValue;
};

/// Specialised beside each enumeration that persists by a string, with
/// `static constexpr std::array<RawCase<Enumeration>, N> cases` in the order of declaration.
template <typename Enumeration>
struct RawValues;

/// The string by which the case is stored. A value that is no case stops the program.
template <typename Enumeration>
std::string_view rawValue(Enumeration value) {
    for (const auto& entry : RawValues<Enumeration>::cases) {
        if (entry.value == value)
            return entry.rawValue;
    }
    precondition(false, "a value outside its enumeration");
    return {};
}

/// The case stored by exactly this text (letter case counts); absent for every other text.
template <typename Enumeration>
constexpr std::optional<Enumeration> fromRawValue(std::string_view text) {
    for (const auto& entry : RawValues<Enumeration>::cases) {
        if (entry.rawValue == text)
            return entry.value;
    }
    return std::nullopt;
}

/// Every case in the order of declaration.
template <typename Enumeration>
constexpr auto allCases() {
    constexpr auto& cases = RawValues<Enumeration>::cases;
    std::array<Enumeration, cases.size()> values{};
    for (std::size_t index = 0; index < values.size(); ++index)
        values[index] = cases[index].value;
    return values;
}

} // namespace tambrelle
