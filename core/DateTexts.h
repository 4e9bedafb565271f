#pragma once

#include "core/DecimalTime.h"
#include "core/MenuBarFormat.h"
#include "core/RevolutionaryDate.h"

#include <string>

namespace tambrelle {

/// Decimal hours and minutes as every text shows them: "7:05". Seconds are never shown.
std::string timeText(const DecimalTime& time);

/// The line in the bar, such as "🌫️ 23 Brumaire · Tridi · 5:00".
/// A date outside the calendar stops the program.
std::string menuBarText(const RevolutionaryDate& today, const DecimalTime& time, MenuBarFormat format);

/// The one line that is copied for others to read: the viewed day with the present decimal time, such as
/// "🌫️ 23 Brumaire an CCXXXIV · 5:00 décimal". A date outside the calendar stops the program.
std::string shareableText(const RevolutionaryDate& viewed, const DecimalTime& time);

} // namespace tambrelle
