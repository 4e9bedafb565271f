#pragma once

#include "platform/LoginItem.h"

namespace tambrelle::fakes {

/// Keeps the registration in memory; a desktop that `refuses` leaves it as it is.
class FakeLoginItem final : public LoginItem {
public:
    [[nodiscard]] bool isEnabled() const override { return enabled; }
    [[nodiscard]] bool setEnabled(bool value) override {
        ++requests;
        if (refuses)
            return false;
        enabled = value;
        return true;
    }

    bool enabled = false;
    bool refuses = false;
    int requests = 0;
};

} // namespace tambrelle::fakes
