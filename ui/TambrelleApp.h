#pragma once

#include "app/CalendarManager.h"
#include "app/NotificationManager.h"
#include "app/SoundManager.h"
#include "platform/Platform.h"
#include "ui/MenuBarLabel.h"

#include <QObject>
#include <QPointer>

#include <memory>

namespace tambrelle {

class PanelWindow;
class SettingsView;

/// The application: owns the one CalendarManager with its two services, and the two scenes, the item with its
/// panel and the settings window.
class TambrelleApp final : public QObject {
    Q_OBJECT

public:
    /// The ports behind `platform` outlive the application.
    explicit TambrelleApp(const Platform& platform);
    ~TambrelleApp() override;

    /// Opens the panel by the pointer, for a request that comes from elsewhere than the item.
    void showPanel();
    void openSettings();

private:
    [[nodiscard]] PanelWindow& panelWindow();

    Platform platform;
    SoundManager sound;
    NotificationManager notifications;
    CalendarManager calendarManager;
    MenuBarLabel label;
    std::unique_ptr<PanelWindow> panel; ///< made when it is first opened
    QPointer<SettingsView> settings;    ///< while its window is open
};

} // namespace tambrelle
