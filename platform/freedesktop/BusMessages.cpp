#include "platform/freedesktop/BusMessages.h"

#include <QDBusError>
#include <QDBusVariant>
#include <QVariant>

namespace tambrelle {

QDBusMessage callToBus(const QString& method, const QVariantList& arguments) {
    QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                                       QStringLiteral("/org/freedesktop/DBus"),
                                                       QStringLiteral("org.freedesktop.DBus"), method);
    call.setArguments(arguments);
    return call;
}

QDBusMessage requestName(const QString& name) {
    constexpr uint doNotQueue = 4;
    return callToBus(QStringLiteral("RequestName"), {name, doNotQueue});
}

QDBusMessage invalidArguments(const QDBusMessage& call) {
    return call.createErrorReply(QDBusError::InvalidArgs, QStringLiteral("The arguments have other types"));
}

std::optional<QDBusMessage> replyWithProperty(const QDBusMessage& call, const QVariantMap& all) {
    if (call.interface() != QLatin1String("org.freedesktop.DBus.Properties") && !call.interface().isEmpty())
        return std::nullopt;
    if (call.member() == QLatin1String("GetAll"))
        return call.signature() == QLatin1String("s") ? call.createReply(QVariant(all))
                                                      : invalidArguments(call);
    if (call.member() == QLatin1String("Get")) {
        if (call.signature() != QLatin1String("ss"))
            return invalidArguments(call);
        const auto found = all.constFind(call.arguments().at(1).toString());
        if (found == all.cend())
            return call.createErrorReply(QDBusError::UnknownProperty, QStringLiteral("No such property"));
        return call.createReply(QVariant::fromValue(QDBusVariant(*found)));
    }
    if (call.member() == QLatin1String("Set"))
        return call.createErrorReply(QDBusError::PropertyReadOnly, QStringLiteral("No property can be set"));
    return std::nullopt;
}

} // namespace tambrelle
