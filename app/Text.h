#pragma once

#include <QString>

#include <string_view>

namespace tambrelle {

/// Where texts change from the calendar's UTF-8 to the toolkit's strings.
[[nodiscard]] inline QString toQString(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace tambrelle
