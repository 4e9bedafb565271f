#pragma once

#include <QString>

#include <optional>

namespace tambrelle {

/// The files that ship with the application.
class ResourceBundle {
public:
    virtual ~ResourceBundle() = default;

    /// The path of the shipped file `name`, for example "plates/Guillotine.png"; absent when it does not
    /// exist.
    [[nodiscard]] virtual std::optional<QString> file(const QString& name) const = 0;
};

} // namespace tambrelle
