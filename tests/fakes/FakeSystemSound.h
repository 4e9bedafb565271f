#pragma once

#include "platform/SystemSound.h"

namespace tambrelle::fakes {

/// Counts the alerts.
class FakeSystemSound final : public SystemSound {
public:
    void beep() override { ++beeps; }

    int beeps = 0;
};

} // namespace tambrelle::fakes
