#pragma once

#include "core/Instant.h"
#include "core/RandomSource.h"
#include "core/RevolutionaryDate.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tambrelle::HistoricalData {

/// A day of the Republican calendar that comes back every year.
struct MonthAndDay {
    std::int64_t month; ///< 1 to 12, or 13 for the complementary days
    std::int64_t day;

    bool operator==(const MonthAndDay&) const = default;
};

/// Something that happened on a Republican day. The texts are views of compiled-in tables.
struct Event {
    MonthAndDay revolutionaryDate;
    std::optional<std::int64_t> year; ///< the Republican year; absent for the yearly festivals
    std::string_view title;
    std::string_view description;
    std::string_view emoji; ///< one user-perceived character

    bool operator==(const Event&) const = default;
};

/// All events in the table's own order, which is not that of time. No two fall on the same month and day.
extern const std::array<Event, 38> allEvents;

/// The events of the date's month and day in table order, whatever the year; empty where there are none.
std::vector<Event> events(const RevolutionaryDate& date);

/// The beginning of 10 September 1977, the day of the last execution by guillotine (of Hamida Djandoubi, at
/// Les Baumettes in Marseille), in the time zone that was the system's at the first call; later changes of
/// the zone do not move it.
Instant lastGuillotineExecution();

/// Whole local calendar days from the last execution to the instant, truncated toward zero.
std::int64_t daysSinceLastGuillotine(Instant now);

/// As above, until the present moment of the system's clock, which is asked for here; who has a clock of its
/// own passes that clock's instant instead.
std::int64_t daysSinceLastGuillotine();

/// What the Revolution cried, sang and wrote over its doors, in French, in no order of time.
inline constexpr std::array<std::string_view, 10> slogans{
    "Liberté, Égalité, Fraternité",
    "Vivre libre ou mourir",
    "La République une et indivisible",
    "Guerre aux tyrans, paix aux chaumières",
    "Le peuple français reconnaît l'Être suprême",
    "Unité, Indivisibilité de la République",
    "Les aristocrates à la lanterne!",
    "Ça ira, ça ira, ça ira",
    "La patrie en danger!",
    "Aux armes, citoyens!",
};

/// Any of the slogans, each as likely as the others; the one on show is not excluded.
std::string_view randomSlogan(RandomSource& source);

} // namespace tambrelle::HistoricalData
