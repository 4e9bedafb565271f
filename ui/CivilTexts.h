#pragma once

#include "core/Instant.h"

#include <QLocale>
#include <QString>

namespace tambrelle {

/// Day, short month name and year in the locale's order, without the weekday, in the system's time zone;
/// empty for an instant outside the civil calendar's range.
[[nodiscard]] QString civilDateText(Instant instant, const QLocale& locale);

/// Hour and minute as the locale writes them; empty likewise.
[[nodiscard]] QString civilTimeText(Instant instant, const QLocale& locale);

/// The locale's pattern of a time of day, without seconds.
[[nodiscard]] QString timePattern(const QLocale& locale);

/// The locale's pattern of a long date with the weekday taken out and the month's name shortened.
[[nodiscard]] QString mediumDatePattern(const QLocale& locale);

} // namespace tambrelle
