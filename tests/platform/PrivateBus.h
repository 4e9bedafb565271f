#pragma once

#include <QProcess>
#include <QString>

namespace tambrelle::test {

/// A message bus of the test's own, empty at first, which ends with this object.
class PrivateBus final {
public:
    PrivateBus() {
        daemon.start(QStringLiteral("dbus-daemon"),
                     {QStringLiteral("--session"), QStringLiteral("--nofork"),
                      QStringLiteral("--print-address=1"), QStringLiteral("--address=unix:tmpdir=/tmp")});
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
    QProcess daemon;
    QString busAddress;
};

} // namespace tambrelle::test
