#include "core/MomentReader.h"

#include "core/GregorianCalendar.h"

namespace tambrelle {

[[gnu::hot]] RevolutionaryMoment MomentReader::at(Instant now, std::optional<std::uint64_t> generation) {
    if (!generation)
        return RevolutionaryCalendar::toMoment(now);
    const bool holds =
        steady && steady->generation == *generation && steady->from <= now && now - steady->from < span;
    if (!holds) {
        steady.reset();
        const auto offset = GregorianCalendar::steadyOffset(now, span);
        // The clocks are about to change.
        if (!offset)
            return RevolutionaryCalendar::toMoment(now);
        steady = {*generation, now, *offset};
    }
    return RevolutionaryCalendar::toMoment(now, steady->offset);
}

} // namespace tambrelle
