#pragma once

#include <QPoint>

#include <optional>

namespace tambrelle {

class UserDefaults;

/// Where the user has dragged the floating label, for the next session too.
class RememberedPlace final {
public:
    /// `defaults` outlives this object.
    explicit RememberedPlace(UserDefaults& defaults) : defaults(defaults) {}

    /// The label's upper left corner in logical pixels of the desktop, which may have other screens by now;
    /// absent when it was never dragged or what is stored is no place.
    [[nodiscard]] std::optional<QPoint> corner() const;
    void remember(QPoint corner);

private:
    UserDefaults& defaults;
};

} // namespace tambrelle
