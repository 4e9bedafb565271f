#include "tests/soak/MorningsModel.h"

#include <algorithm>
#include <iterator>

namespace tambrelle::soak {

namespace {

QString identifier(Days day) {
    const std::chrono::year_month_day civil{day};
    return QStringLiteral("daily-%1-%2-%3")
        .arg(int{civil.year()})
        .arg(unsigned{civil.month()})
        .arg(unsigned{civil.day()});
}

} // namespace

void MorningsModel::deliver(Instant now) {
    std::ranges::stable_sort(mornings, {}, &Morning::due);
    const auto later =
        std::ranges::find_if(mornings, [now](const Morning& morning) { return morning.due > now; });
    if (later != mornings.begin())
        shown.push_back(identifier(std::prev(later)->day));
    mornings.erase(mornings.begin(), later);
    noteEarliest();
}

void MorningsModel::reschedule(const WallClock& wall, Instant now) {
    deliver(now);
    mornings.clear();
    for (int offset = 0; enabled && offset < horizon; ++offset) {
        // The day is that of the moment so many days on, which summer time may move past midnight.
        const Days day = wall.dayAt(wall.plusDays(now, offset));
        const auto fires = wall.first(day, hour, minute);
        if (!fires || *fires <= now)
            continue;
        std::erase_if(mornings, [day](const Morning& morning) { return morning.day == day; });
        mornings.push_back({.day = day, .hour = hour, .minute = minute, .due = *fires});
    }
    noteEarliest();
}

void MorningsModel::moveTo(const WallClock& wall) {
    for (Morning& morning : mornings)
        morning.due = wall.firstOrSkip(morning.day, morning.hour, morning.minute);
    noteEarliest();
}

void MorningsModel::forget() {
    mornings.clear();
    noteEarliest();
}

void MorningsModel::noteEarliest() {
    const auto first = std::ranges::min_element(mornings, {}, &Morning::due);
    earliest = first == mornings.end() ? Instant{} : first->due;
}

} // namespace tambrelle::soak
