#pragma once

#include "tests/soak/WallClock.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace tambrelle::soak {

/// Which mornings must have been shown, told apart from the program: a plain list of days with their time.
class MorningsModel final {
public:
    static constexpr int horizon = 14;

    bool enabled = true;
    std::int64_t hour = 8;
    std::int64_t minute = 0;

    /// Takes what is due by now off the list, and puts the identifier of the last of it into `shown`.
    void deliver(Instant now);
    /// As the manager does it: what is due first, then a new list.
    void reschedule(const WallClock& wall, Instant now);
    /// The zone is another one now.
    void moveTo(const WallClock& wall);
    /// A new process begins with an empty list.
    void forget();

    [[nodiscard]] std::size_t pending() const { return mornings.size(); }
    [[nodiscard]] bool isDue(Instant now) const { return !mornings.empty() && earliest <= now; }

    std::vector<QString> shown;

private:
    struct Morning {
        Days day;
        std::int64_t hour;
        std::int64_t minute;
        Instant due;
    };

    void noteEarliest();

    std::vector<Morning> mornings;
    Instant earliest{};
};

} // namespace tambrelle::soak
