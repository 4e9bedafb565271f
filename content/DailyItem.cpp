#include "content/DailyItem.h"

#include "core/LowerCase.h"

#include <cinttypes>
#include <cstdio>
#include <utility>

namespace tambrelle {
namespace {

// Precomposed letters only, which is how the table spells its names.
constexpr std::array<std::pair<std::string_view, std::string_view>, 15> replacements{{
    {" ", "_"},
    {"'", ""},
    {"é", "e"},
    {"è", "e"},
    {"ê", "e"},
    {"ë", "e"},
    {"à", "a"},
    {"â", "a"},
    {"î", "i"},
    {"ï", "i"},
    {"ô", "o"},
    {"û", "u"},
    {"ù", "u"},
    {"ç", "c"},
    {"œ", "oe"},
}};

void replaceAll(std::string& text, std::string_view sought, std::string_view replacement) {
    for (auto at = text.find(sought); at != std::string::npos;
         at = text.find(sought, at + replacement.size()))
        text.replace(at, sought.size(), replacement);
}

} // namespace

std::string DailyItem::imageName() const {
    std::string slug = lowerCase(frenchName);
    for (const auto& [sought, replacement] : replacements)
        replaceAll(slug, sought, replacement);

    std::array<char, 24> number{}; // any 64-bit integer with its sign
    std::snprintf(number.data(), number.size(), "%03" PRId64, dayOfYear);
    return std::string{"day_"} + number.data() + "_" + slug;
}

} // namespace tambrelle
