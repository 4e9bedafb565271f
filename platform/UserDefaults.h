#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace tambrelle {

/// The user's stored preferences. A store that cannot be read is empty; one that cannot be written keeps what
/// was set in memory until the program ends. Neither is an error of the caller's.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    /// The text under `key`; absent when the key is missing or holds something else.
    [[nodiscard]] virtual std::optional<QString> string(const QString& key) const = 0;
    /// The truth value under `key`; false when the key is missing or holds something else.
    [[nodiscard]] virtual bool boolean(const QString& key) const = 0;
    /// The whole number under `key`; 0 when the key is missing or holds something else.
    [[nodiscard]] virtual std::int64_t integer(const QString& key) const = 0;

    virtual void setString(const QString& key, const QString& value) = 0;
    virtual void setBoolean(const QString& key, bool value) = 0;
    virtual void setInteger(const QString& key, std::int64_t value) = 0;
};

} // namespace tambrelle
