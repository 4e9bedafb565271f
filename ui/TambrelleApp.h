#pragma once

#include "app/CalendarManager.h"
#include "app/NotificationManager.h"
#include "app/SoundManager.h"
#include "platform/Platform.h"
#include "ui/MenuBarLabel.h"

#include <QFont>
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
    /// What the panel's text is set by; a panel that is open keeps its own.
    struct TextSettings {
        QFont font;
        double scale = 1;

        bool operator==(const TextSettings&) const = default;
    };

    [[nodiscard]] PanelWindow& panelWindow();

    Platform platform;
    SoundManager sound;
    NotificationManager notifications;
    CalendarManager calendarManager;
    MenuBarLabel label;
    std::unique_ptr<PanelWindow> panel; ///< made when it is first opened, and for other text anew
    TextSettings panelText;             ///< that the panel was made for
    QPointer<SettingsView> settings;    ///< while its window is open
};

} // namespace tambrelle
