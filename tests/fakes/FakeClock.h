#pragma once

#include "platform/Clock.h"

namespace tambrelle::fakes {

/// Shows the time that it is set to, and counts how often it is asked.
class FakeClock final : public Clock {
public:
    [[nodiscard]] Instant now() const override {
        ++readCount;
        return instant;
    }

    void set(Instant next) { instant = next; }
    void advance(Instant::duration by) { instant += by; }
    [[nodiscard]] int reads() const { return readCount; }

private:
    Instant instant{};
    mutable int readCount = 0;
};

} // namespace tambrelle::fakes
