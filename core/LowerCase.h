#pragma once

#include <string>
#include <string_view>

namespace tambrelle {

/// The UTF-8 text in lower case by Unicode's own mapping, whatever the locale. Covers the letters of Basic
/// Latin, Latin-1 and Latin Extended-A, which hold every letter of French; all else is left as it is.
std::string lowerCase(std::string_view text);

} // namespace tambrelle
