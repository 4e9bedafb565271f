#include "content/HistoricalData.h"

#include "core/GregorianCalendar.h"
#include "core/Precondition.h"
#include "core/UniformIndex.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <iterator>

namespace tambrelle::HistoricalData {

std::vector<Event> events(const RevolutionaryDate& date) {
    const MonthAndDay sought{date.month, date.day};
    std::vector<Event> found;
    std::copy_if(allEvents.begin(), allEvents.end(), std::back_inserter(found),
                 [&sought](const Event& event) { return event.revolutionaryDate == sought; });
    return found;
}

Instant lastGuillotineExecution() {
    static const Instant execution = [] {
        // A zone may have skipped that midnight; its day begins all the same.
        const auto midnight = GregorianCalendar::nextInstant({1977, 9, 10, 0, 0, 0});
        precondition(midnight.has_value(), "no 10 September 1977");
        return *midnight;
    }();
    return execution;
}

std::int64_t daysSinceLastGuillotine(Instant now) {
    return GregorianCalendar::daysBetween(lastGuillotineExecution(), now).value_or(0);
}

std::int64_t daysSinceLastGuillotine() {
    return daysSinceLastGuillotine(std::chrono::floor<Instant::duration>(std::chrono::system_clock::now()));
}

std::string_view randomSlogan(RandomSource& source) {
    return slogans[static_cast<std::size_t>(uniformIndex(source, slogans.size()))];
}

} // namespace tambrelle::HistoricalData
