#pragma once

#include "core/RawValue.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tambrelle {

/// The plant, animal, tool or mineral that names a day. The texts are views of compiled-in tables.
struct DailyItem {
    enum class Category : std::uint8_t { plant, animal, tool, mineral };

    std::string_view name;       ///< in English
    std::string_view frenchName; ///< with its capitals, accents, blanks, hyphens and straight apostrophes
    Category category;
    std::string_view emoji; ///< one user-perceived character
    std::int64_t dayOfYear; ///< 1 to 360 in an item that was looked up, 0 in the table

    /// The base name of the item's picture, such as "day_003_chataigne": only a to z, digits, "_" and "-". It
    /// names a picture only for an item that was looked up.
    std::string imageName() const;
};

template <>
struct RawValues<DailyItem::Category> {
    static constexpr std::array<RawCase<DailyItem::Category>, 4> cases{{
        {DailyItem::Category::plant, "Plant"},
        {DailyItem::Category::animal, "Animal"},
        {DailyItem::Category::tool, "Tool"},
        {DailyItem::Category::mineral, "Mineral"},
    }};
};

} // namespace tambrelle
