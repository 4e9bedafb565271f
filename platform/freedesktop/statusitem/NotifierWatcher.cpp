#include "platform/freedesktop/statusitem/NotifierWatcher.h"

#include "platform/freedesktop/BusMessages.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QFile>

namespace tambrelle {

namespace {

/// A name for a watcher whose process cannot be looked at, for example from inside a sandbox.
const QString unknownProgram = QStringLiteral("?");

QString programOf(uint pid) {
    QFile comm(QStringLiteral("/proc/%1/comm").arg(pid));
    if (!comm.open(QIODevice::ReadOnly))
        return unknownProgram;
    const QString name = QString::fromUtf8(comm.readAll()).trimmed();
    return name.isEmpty() ? unknownProgram : name;
}

} // namespace

NotifierWatcher::NotifierWatcher(const QDBusConnection& bus, QObject* parent) : QObject(parent), bus(bus) {
    // Subscribed before asked, so that a watcher that comes in between is not missed.
    auto* owners = new QDBusServiceWatcher(service, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(owners, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString& /*name*/, const QString& /*oldOwner*/, const QString& owner) {
                follow(owner);
            });
    const uint asked = question;
    auto* answer = new QDBusPendingCallWatcher(
        bus.asyncCall(callToBus(QStringLiteral("GetNameOwner"), {service})), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, asked](QDBusPendingCallWatcher* call) {
        call->deleteLater();
        const QDBusPendingReply<QString> reply = *call;
        if (asked == question)
            follow(reply.isValid() ? reply.value() : QString());
    });
}

void NotifierWatcher::follow(const QString& owner) {
    const uint asked = ++question;
    if (owner.isEmpty()) {
        settle(QString());
        return;
    }
    auto* answer = new QDBusPendingCallWatcher(
        bus.asyncCall(callToBus(QStringLiteral("GetConnectionUnixProcessID"), {owner})), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, asked](QDBusPendingCallWatcher* call) {
        call->deleteLater();
        const QDBusPendingReply<uint> reply = *call;
        if (asked == question)
            settle(reply.isValid() ? programOf(reply.value()) : unknownProgram);
    });
}

void NotifierWatcher::settle(const QString& program) {
    programName = program;
    emit changed();
}

} // namespace tambrelle
