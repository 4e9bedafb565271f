#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QString>
#include <QVariantList>

namespace tambrelle::test {

/// A message bus of this process's own, apart from the user's session, with as many connections as wanted.
class PrivateBus final {
public:
    /// Starts the bus; `isRunning` is false where the machine has none.
    PrivateBus();
    ~PrivateBus();

    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    [[nodiscard]] bool isRunning() const { return !address.isEmpty(); }

    /// A connection of its own, as of another program.
    [[nodiscard]] QDBusConnection connect();

private:
    QProcess daemon;
    QString address;
    QStringList connections;
};

/// Calls and runs the event loop until the answer is there, so that both ends may live in one thread. An
/// error of the caller's side, such as no answer in time, comes back as an error message.
[[nodiscard]] QDBusMessage callAndWait(const QDBusConnection& connection, const QDBusMessage& message);

} // namespace tambrelle::test
