#include "tests/support/PrivateBus.h"

#include "tests/support/EventLoop.h"

#include <QDBusPendingCall>
#include <QFile>

#include <csignal>

namespace tambrelle::test {

PrivateBus::PrivateBus() {
    QFile configuration(folder.filePath(QStringLiteral("bus.conf")));
    if (!configuration.open(QIODevice::WriteOnly))
        return;
    configuration.write(
        "<busconfig><type>session</type><listen>unix:dir=" + QFile::encodeName(folder.path()) +
        "</listen><auth>EXTERNAL</auth><policy context=\"default\"><allow user=\"*\"/>"
        "<allow own=\"*\"/><allow send_destination=\"*\" eavesdrop=\"true\"/>"
        "<allow eavesdrop=\"true\"/></policy></busconfig>");
    configuration.close();
    daemon.start(QStringLiteral("dbus-daemon"),
                 {QStringLiteral("--config-file=") + configuration.fileName(), QStringLiteral("--nofork"),
                  QStringLiteral("--nopidfile"), QStringLiteral("--print-address=1")});
    const bool spoke =
        daemon.waitForStarted() && waitUntil([this] { return daemon.canReadLine() || !daemon.isOpen(); });
    if (spoke)
        address = QString::fromUtf8(daemon.readLine()).trimmed();
}

PrivateBus::~PrivateBus() {
    for (const QString& name : std::as_const(connections))
        QDBusConnection::disconnectFromBus(name);
    daemon.kill();
    daemon.waitForFinished();
}

QDBusConnection PrivateBus::connect() {
    static int count = 0;
    connections.append(QStringLiteral("private-%1").arg(++count));
    return QDBusConnection::connectToBus(address, connections.last());
}

void PrivateBus::freeze() {
    ::kill(static_cast<pid_t>(daemon.processId()), SIGSTOP);
}

QDBusMessage callAndWait(const QDBusConnection& connection, const QDBusMessage& message) {
    const QDBusPendingCall call = connection.asyncCall(message);
    if (!waitUntil([&call] { return call.isFinished(); }))
        return message.createErrorReply(QDBusError::NoReply, QStringLiteral("no answer in time"));
    return call.reply();
}

} // namespace tambrelle::test
