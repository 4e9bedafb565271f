#pragma once

#include "platform/Clock.h"

namespace tambrelle {

/// The system's wall clock.
class SystemClock final : public Clock {
public:
    [[nodiscard]] Instant now() const override;
};

} // namespace tambrelle
