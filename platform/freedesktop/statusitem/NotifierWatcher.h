#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

class QDBusServiceWatcher;

namespace tambrelle {

/// Follows the desktop's `org.kde.StatusNotifierWatcher`, by which bars take items, and tells which program
/// it is.
class NotifierWatcher final : public QObject {
    Q_OBJECT

public:
    static inline const QString service = QStringLiteral("org.kde.StatusNotifierWatcher");
    static inline const QString objectPath = QStringLiteral("/StatusNotifierWatcher");

    /// Asks the bus who the watcher is; `changed` tells the first answer too, which may be that there is
    /// none.
    explicit NotifierWatcher(const QDBusConnection& bus, QObject* parent = nullptr);

    /// The program that takes the items, as the kernel names it (at most 15 characters); empty without a
    /// watcher.
    [[nodiscard]] const QString& program() const { return programName; }
    [[nodiscard]] bool isPresent() const { return !programName.isEmpty(); }

signals:
    /// The watcher has come, gone, or been replaced.
    void changed();

private:
    void follow(const QString& owner);
    void settle(const QString& program);

    QDBusConnection bus;
    QString programName;
    uint question = 0; ///< Numbers the questions to the bus: the answer to an outdated one is dropped.
};

} // namespace tambrelle
