#include "core/RevolutionaryDate.h"

#include "core/RevolutionaryCalendar.h"

namespace tambrelle {

std::string RevolutionaryDate::formatted() const {
    std::string text = std::to_string(day);
    text += ' ';
    text += RevolutionaryCalendar::monthName(month);
    text += " an ";
    text += RevolutionaryCalendar::toRoman(year);
    return text;
}

} // namespace tambrelle
