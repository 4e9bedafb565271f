#pragma once

namespace tambrelle {

/// Whether the desktop starts the application when the user logs in.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    /// The true state, read from the desktop at each call.
    [[nodiscard]] virtual bool isEnabled() const = 0;

    /// Switches the registration; false when the desktop refused.
    [[nodiscard]] virtual bool setEnabled(bool enabled) = 0;
};

} // namespace tambrelle
