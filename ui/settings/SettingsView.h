#pragma once

#include "app/PreferenceKeys.h"
#include "core/MenuBarFormat.h"
#include "ui/AppTheme.h"
#include "ui/Refresher.h"

#include <QTime>
#include <QWidget>

#include <optional>

class QComboBox;
class QTimeEdit;

namespace tambrelle {

class CalendarManager;
class Clock;
class LoginItem;
class NotificationManager;
class SoundManager;
class ToggleRow;

/// The owners of the preferences that the window edits.
struct SettingsServices {
    CalendarManager& manager;
    NotificationManager& notifications;
    SoundManager& sound;
    LoginItem& loginItem;
    const Clock& clock;
};

/// The settings window. Each control writes to the owner of its preference at once; the window itself knows
/// only whether the application starts at login, as read when it was made.
class SettingsView final : public QWidget {
    Q_OBJECT

public:
    explicit SettingsView(const SettingsServices& services, QWidget* parent = nullptr);

    /// Shows the window, or brings the open one to the front.
    void present();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// What the owners hold, as the controls show it.
    struct Shown {
        AppTheme theme = PreferenceKeys::appThemeOtherwise;
        MenuBarFormat format = PreferenceKeys::menuBarFormatOtherwise;
        bool reminds = false;
        QTime reminder;
        bool chimes = false;

        bool operator==(const Shown&) const = default;
    };

    [[nodiscard]] Shown stored() const;
    void refresh();
    void layOutForm();
    void connectControls();
    void setLaunchAtLogin(bool enabled);
    void setReminderTime(QTime time);

    SettingsServices services;
    Refresher refresher;
    std::optional<Shown> shown;

    ToggleRow* launchAtLogin;
    QComboBox* theme;
    QComboBox* format;
    ToggleRow* reminds;
    QTimeEdit* reminder;
    QWidget* reminderRow = nullptr;
    ToggleRow* chimes;
};

} // namespace tambrelle
