#pragma once

#include "core/RawValue.h"

#include <array>
#include <cstdint>

namespace tambrelle {

/// The look of the panel, chosen by the user alone: neither the time of day nor the desktop's appearance
/// takes part.
enum class AppTheme : std::uint8_t { light, sepiaNight };

template <>
struct RawValues<AppTheme> {
    static constexpr std::array<RawCase<AppTheme>, 2> cases{{
        {AppTheme::light, "light"},
        {AppTheme::sepiaNight, "sepiaNight"},
    }};
};

} // namespace tambrelle
