#pragma once

#include "core/Instant.h"

#include <cstdint>

namespace tambrelle {

/// The instant of today's notification, for a time picker: today at this hour and minute, the first time that
/// the wall clock shows them, or the next minute that it does show. `now` itself where there is no such time,
/// as with the hour 99 of a damaged preference.
[[nodiscard]] Instant reminderTime(Instant now, std::int64_t hour, std::int64_t minute);

} // namespace tambrelle
