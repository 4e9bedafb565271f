#pragma once

#include <QFile>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace tambrelle::test {

/// A message bus of the test's own, empty at first and without services that it could start, which ends with
/// this object.
class PrivateBus final {
public:
    PrivateBus() {
        QFile configuration(folder.filePath(QStringLiteral("bus.conf")));
        if (!configuration.open(QIODevice::WriteOnly))
            return;
        configuration.write("<busconfig><type>session</type><listen>unix:dir=" + folder.path().toLocal8Bit() +
                            "</listen><auth>EXTERNAL</auth><policy context=\"default\"><allow user=\"*\"/>"
                            "<allow own=\"*\"/><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                            "<allow eavesdrop=\"true\"/></policy></busconfig>");
        configuration.close();
        daemon.start(QStringLiteral("dbus-daemon"),
                     {QStringLiteral("--config-file=") + configuration.fileName(), QStringLiteral("--nofork"),
                      QStringLiteral("--nopidfile"), QStringLiteral("--print-address=1")});
        if (daemon.waitForReadyRead(10'000))
            busAddress = QString::fromLocal8Bit(daemon.readLine().trimmed());
    }
    ~PrivateBus() {
        daemon.kill();
        daemon.waitForFinished();
    }

    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    /// Empty when no bus could be started.
    [[nodiscard]] QString address() const { return busAddress; }

private:
    QTemporaryDir folder;
    QProcess daemon;
    QString busAddress;
};

} // namespace tambrelle::test
