#include "ui/settings/ReminderTime.h"

#include "core/GregorianCalendar.h"

namespace tambrelle {

Instant reminderTime(Instant now, std::int64_t hour, std::int64_t minute) {
    auto components = GregorianCalendar::components(now);
    if (!components)
        return now;
    components->hour = hour;
    components->minute = minute;
    components->second = 0;
    return GregorianCalendar::nextInstant(*components).value_or(now);
}

} // namespace tambrelle
