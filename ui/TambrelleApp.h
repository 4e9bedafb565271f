#pragma once

#include "app/CalendarManager.h"
#include "app/NotificationManager.h"
#include "app/SoundManager.h"
#include "platform/Platform.h"
#include "ui/MenuBarLabel.h"

#include <QObject>

namespace tambrelle {

/// The application: owns the one CalendarManager with its two services, and the two scenes, the item with its
/// panel and the settings window.
class TambrelleApp final : public QObject {
    Q_OBJECT

public:
    /// The ports behind `platform` outlive the application.
    explicit TambrelleApp(const Platform& platform);

private:
    SoundManager sound;
    NotificationManager notifications;
    CalendarManager calendarManager;
    MenuBarLabel label;
};

} // namespace tambrelle
