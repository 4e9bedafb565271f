#pragma once

#include "platform/ContrastPreference.h"

namespace tambrelle::fakes {

class FakeContrastPreference final : public ContrastPreference {
public:
    [[nodiscard]] Contrast contrast() const override { return value; }
    void set(Contrast next) {
        value = next;
        emit changed();
    }

private:
    Contrast value = Contrast::normal;
};

} // namespace tambrelle::fakes
