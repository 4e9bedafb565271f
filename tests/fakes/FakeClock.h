#pragma once

#include "platform/Clock.h"

#include <cstdint>
#include <optional>

namespace tambrelle::fakes {

/// Shows the time that it is set to, and counts how often it is asked.
class FakeClock final : public Clock {
public:
    [[nodiscard]] Instant now() const override {
        ++readCount;
        return instant;
    }

    [[nodiscard]] std::optional<std::uint64_t> zoneGeneration() const override { return generation; }

    /// From here on the zone is known to be the same until this is called again; before, it may always
    /// change.
    void beginZoneGeneration() { generation = generation.value_or(0) + 1; }
    void set(Instant next) { instant = next; }
    void advance(Instant::duration by) { instant += by; }
    [[nodiscard]] int reads() const { return readCount; }

private:
    Instant instant{};
    std::optional<std::uint64_t> generation;
    mutable int readCount = 0;
};

} // namespace tambrelle::fakes
