#include "core/DateTexts.h"

#include "core/GraphemePrefix.h"
#include "core/Precondition.h"
#include "core/RevolutionaryCalendar.h"

#include <string_view>

namespace tambrelle {
namespace {

constexpr std::string_view separator = " · ";
constexpr std::size_t abbreviationLength = 4;

} // namespace

std::string timeText(const DecimalTime& time) {
    std::string text = std::to_string(time.hours);
    text += time.minutes < 10 ? ":0" : ":";
    text += std::to_string(time.minutes);
    return text;
}

std::string menuBarText(const RevolutionaryDate& today, const DecimalTime& time, MenuBarFormat format) {
    const std::string_view month = RevolutionaryCalendar::monthName(today.month);
    std::string text{RevolutionaryCalendar::monthEmoji(today.month)};
    text += ' ';
    switch (format) {
    case MenuBarFormat::dateAndTime:
        text += std::to_string(today.day);
        text += ' ';
        text += month;
        text += separator;
        text += RevolutionaryCalendar::dayName(today.decadeDay);
        text += separator;
        text += timeText(time);
        return text;
    case MenuBarFormat::date:
        text += std::to_string(today.day);
        text += ' ';
        text += graphemePrefix(month, abbreviationLength);
        text += '.';
        return text;
    case MenuBarFormat::decimalTime:
        text += timeText(time);
        return text;
    case MenuBarFormat::dayNumber:
        text += std::to_string(today.day);
        return text;
    }
    precondition(false, "a value outside its enumeration");
    return text;
}

std::string shareableText(const RevolutionaryDate& viewed, const DecimalTime& time) {
    std::string text{RevolutionaryCalendar::monthEmoji(viewed.month)};
    text += ' ';
    text += viewed.formatted();
    text += separator;
    text += timeText(time);
    text += " décimal";
    return text;
}

} // namespace tambrelle
