#include "platform/freedesktop/SessionBus.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

#include <chrono>
#include <utility>

namespace tambrelle {

namespace {

constexpr std::chrono::seconds betweenLooks{2};

/// Where the session's bus listens; empty where only a search by way of the display would tell, which could
/// start another bus.
QString sessionAddress() {
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (!address.isEmpty())
        return address.startsWith(QLatin1String("autolaunch:")) ? QString() : address;
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return runtime.isEmpty() ? QString() : QStringLiteral("unix:path=%1/bus").arg(runtime);
}

} // namespace

SessionBus::SessionBus(QObject* parent)
    : QObject(parent), address(sessionAddress()), current(QDBusConnection::sessionBus()) {
    pause.setSingleShot(true);
    pause.setInterval(betweenLooks);
    connect(&pause, &QTimer::timeout, this, &SessionBus::look);
    follow();
}

SessionBus::~SessionBus() {
    if (current.name() != QDBusConnection::sessionBus().name())
        QDBusConnection::disconnectFromBus(current.name());
}

void SessionBus::follow() {
    current.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                    QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                    SLOT(noteEnd()));
    if (!current.isConnected() && !address.isEmpty())
        pause.start();
}

void SessionBus::noteEnd() {
    if (!address.isEmpty())
        pause.start();
    emit changed();
}

void SessionBus::look() {
    const QString name = QStringLiteral("tambrelle-%1").arg(++looks);
    // To connect is to wait for the bus's answers, and this thread waits for nothing.
    QThreadPool::globalInstance()->start(
        [self = QPointer(this), application = qApp, name, address = address] {
            const QDBusConnection found = QDBusConnection::connectToBus(address, name);
            const auto tell = [self, found] {
                if (self)
                    self->take(found);
            };
            QMetaObject::invokeMethod(application, tell, Qt::QueuedConnection);
        });
}

void SessionBus::take(const QDBusConnection& found) {
    if (!found.isConnected()) {
        QDBusConnection::disconnectFromBus(found.name());
        pause.start();
        return;
    }
    const QDBusConnection former = std::exchange(current, found);
    follow();
    emit changed();
    if (former.name() != QDBusConnection::sessionBus().name())
        QDBusConnection::disconnectFromBus(former.name());
}

} // namespace tambrelle
