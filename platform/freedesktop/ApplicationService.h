#pragma once

#include <QDBusVirtualObject>
#include <QTimer>

namespace tambrelle {

class SessionBus;

/// The application on the session bus as `org.freedesktop.Application`, which makes it the only one of its
/// user: a second start asks the first to show its panel and ends.
class ApplicationService final : public QDBusVirtualObject {
    Q_OBJECT

public:
    /// `bus` outlives the service.
    explicit ApplicationService(const SessionBus& bus, QObject* parent = nullptr);

    /// Asks the bus for the application's name; one of the two signals below tells the answer. Without a bus,
    /// or with one that does not answer, the application takes itself for the only one.
    void claim();

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

signals:
    /// This is the only application: start.
    void claimed();
    /// Another one runs and has been asked to show its panel: end.
    void deferred();

    /// Another start, or the desktop, asks for the panel.
    void activated();
    void preferencesRequested();
    void quitRequested();

private:
    void join();
    void settle();
    void deferToFirst();

    const SessionBus& bus;
    QTimer patience;
    bool settled = false;
};

} // namespace tambrelle
