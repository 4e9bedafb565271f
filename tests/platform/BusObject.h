#pragma once

#include "tests/support/PrivateBus.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QString>
#include <QVariantList>

namespace tambrelle::test {

/// An object on a private bus with a caller on the other side of it, as a bar is.
class BusObject final {
public:
    BusObject(QDBusVirtualObject* object, const QString& path, const QString& interface)
        : server(bus.connect()), client(bus.connect()), path(path), interface(interface) {
        server.registerVirtualObject(path, object);
    }
    ~BusObject() { server.unregisterObject(path); }

    BusObject(const BusObject&) = delete;
    BusObject& operator=(const BusObject&) = delete;

    [[nodiscard]] bool isReady() const {
        return bus.isRunning() && server.isConnected() && client.isConnected();
    }

    [[nodiscard]] QDBusMessage call(const QString& method, const QVariantList& arguments) const {
        return callOf(interface, method, arguments);
    }
    /// A call of the interface that every object has for its properties.
    [[nodiscard]] QDBusMessage properties(const QString& method, const QVariantList& arguments) const {
        return callOf(QStringLiteral("org.freedesktop.DBus.Properties"), method, arguments);
    }
    [[nodiscard]] QDBusMessage callOf(const QString& ofInterface, const QString& method,
                                      const QVariantList& arguments) const {
        QDBusMessage message =
            QDBusMessage::createMethodCall(server.baseService(), path, ofInterface, method);
        message.setArguments(arguments);
        return callAndWait(client, message);
    }
    /// One property's value; invalid when the object has no such property.
    [[nodiscard]] QVariant property(const QString& name) const {
        const QDBusMessage reply = properties(QStringLiteral("Get"), {interface, name});
        return reply.type() == QDBusMessage::ReplyMessage
                   ? reply.arguments().value(0).value<QDBusVariant>().variant()
                   : QVariant();
    }
    [[nodiscard]] QVariantMap allProperties() const {
        const QDBusMessage reply = properties(QStringLiteral("GetAll"), {interface});
        return qdbus_cast<QVariantMap>(reply.arguments().value(0));
    }
    [[nodiscard]] QString introspection() const {
        return callOf(QStringLiteral("org.freedesktop.DBus.Introspectable"), QStringLiteral("Introspect"), {})
            .arguments()
            .value(0)
            .toString();
    }

private:
    PrivateBus bus;
    QDBusConnection server;
    QDBusConnection client;
    QString path;
    QString interface;
};

} // namespace tambrelle::test
