#pragma once

#include <QDBusMessage>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

#include <optional>

namespace tambrelle {

/// A call of the bus itself, org.freedesktop.DBus.
[[nodiscard]] QDBusMessage callToBus(const QString& method, const QVariantList& arguments);

/// Asks the bus for a well-known name; where another has it, without waiting in line for it.
[[nodiscard]] QDBusMessage requestName(const QString& name);

/// The error for a call whose arguments have not the types of its method.
[[nodiscard]] QDBusMessage invalidArguments(const QDBusMessage& call);

/// The answer to Get, GetAll or Set of org.freedesktop.DBus.Properties on an object with these properties,
/// none of which can be set. Nothing for any other call. A caller may leave the interface out; then the
/// member's name alone tells.
[[nodiscard]] std::optional<QDBusMessage> replyWithProperty(const QDBusMessage& call, const QVariantMap& all);

} // namespace tambrelle
