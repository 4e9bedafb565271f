#pragma once

#include <QDBusMessage>
#include <QVariantMap>

#include <optional>

namespace tambrelle {

/// The error for a call whose arguments have not the types of its method.
[[nodiscard]] QDBusMessage invalidArguments(const QDBusMessage& call);

/// The answer to Get, GetAll or Set of org.freedesktop.DBus.Properties on an object with these properties,
/// none of which can be set. Nothing for any other call. A caller may leave the interface out; then the
/// member's name alone tells.
[[nodiscard]] std::optional<QDBusMessage> replyWithProperty(const QDBusMessage& call, const QVariantMap& all);

} // namespace tambrelle
