#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <QVariantList>

namespace tambrelle::test {

/// A message bus of this process's own, empty at first and without services that it could start, with as many
/// connections as wanted. It ends with this object.
class PrivateBus final {
public:
    /// `isRunning` is false where no bus could be started.
    PrivateBus();
    ~PrivateBus();

    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    [[nodiscard]] bool isRunning() const { return !address.isEmpty(); }

    /// A connection of its own, as of another program.
    [[nodiscard]] QDBusConnection connect();

    /// The bus stands still: it takes what is sent and answers nothing.
    void freeze();

private:
    QTemporaryDir folder;
    QProcess daemon;
    QString address;
    QStringList connections;
};

/// Calls and runs the event loop until the answer is there, so that both ends may live in one thread. An
/// error of the caller's side, such as no answer in time, comes back as an error message.
[[nodiscard]] QDBusMessage callAndWait(const QDBusConnection& connection, const QDBusMessage& message);

} // namespace tambrelle::test
