#pragma once

#include "core/RawValue.h"

#include <array>
#include <cstdint>

namespace tambrelle {

/// What the line in the bar shows after the month's emoji.
enum class MenuBarFormat : std::uint8_t { dateAndTime, date, decimalTime, dayNumber };

template <>
struct RawValues<MenuBarFormat> {
    static constexpr std::array<RawCase<MenuBarFormat>, 4> cases{{
        {MenuBarFormat::dateAndTime, "dateAndTime"},
        {MenuBarFormat::date, "date"},
        {MenuBarFormat::decimalTime, "decimalTime"},
        {MenuBarFormat::dayNumber, "dayNumber"},
    }};
};

} // namespace tambrelle
