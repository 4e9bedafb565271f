#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QTimer>

namespace tambrelle {

/// The session's message bus. Should it end, it is looked for at its address every few seconds until it is
/// back; until it ends that costs nothing. The toolkit's own shared connection never comes back.
class SessionBus final : public QObject {
    Q_OBJECT

public:
    explicit SessionBus(QObject* parent = nullptr);
    ~SessionBus() override;

    /// The present connection, which may be a dead one. By value, so that its holder can still take leave of
    /// it when it is no longer the present one.
    [[nodiscard]] QDBusConnection connection() const { return current; }

signals:
    /// The bus has ended, or is back under another connection. Whatever was registered, claimed or subscribed
    /// has ended with the former one.
    void changed();

private:
    void follow();
    void look();
    void take(const QDBusConnection& found);

private slots:
    void noteEnd();

private:
    QString address; ///< Empty where none is known at which a bus could come back.
    QDBusConnection current;
    QTimer pause;
    int looks = 0; ///< How often it has been looked for; numbers the connections.
};

} // namespace tambrelle
