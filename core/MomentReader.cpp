#include "core/MomentReader.h"

#include "core/GregorianCalendar.h"

namespace tambrelle {

RevolutionaryMoment MomentReader::at(Instant now, std::optional<std::uint64_t> zone) {
    if (!zone)
        return RevolutionaryCalendar::toMoment(now);
    const bool holds = steady && steady->zone == *zone && steady->from <= now && now - steady->from < reach;
    if (!holds) {
        steady.reset();
        const auto offset = GregorianCalendar::steadyOffset(now, reach);
        // The clocks are about to change.
        if (!offset)
            return RevolutionaryCalendar::toMoment(now);
        steady = {*zone, now, *offset};
    }
    return RevolutionaryCalendar::toMoment(now, steady->offset);
}

} // namespace tambrelle
