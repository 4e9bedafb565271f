#pragma once

#include "platform/ContrastPreference.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>

class QDBusMessage;

namespace tambrelle {

class SessionBus;

/// The contrast of the settings portal, `org.freedesktop.appearance`, while one runs: none is started for it.
class PortalContrast final : public ContrastPreference {
    Q_OBJECT

public:
    /// `bus` outlives the object. Asks at once; `changed` tells an answer other than normal.
    explicit PortalContrast(const SessionBus& bus, QObject* parent = nullptr);

    [[nodiscard]] Contrast contrast() const override { return current; }

private:
    void follow();
    void ask();
    void settle(const QVariant& told);

private slots:
    void noteSetting(const QDBusMessage& changed);

private:
    const SessionBus& bus;
    QDBusServiceWatcher portals;
    Contrast current = Contrast::normal;
};

} // namespace tambrelle
