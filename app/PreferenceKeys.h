#pragma once

#include "core/MenuBarFormat.h"
#include "ui/AppTheme.h"

#include <QString>

#include <cstdint>

/// Every stored preference, declared once: its key, and what a first run or a missing value gives.
namespace tambrelle::PreferenceKeys {

/// Raw value of a MenuBarFormat.
inline const QString menuBarFormat = QStringLiteral("menuBarFormat");
inline constexpr MenuBarFormat menuBarFormatOtherwise = MenuBarFormat::dateAndTime; ///< missing or unknown

/// Raw value of an AppTheme.
inline const QString appTheme = QStringLiteral("appTheme");
inline constexpr AppTheme appThemeOtherwise = AppTheme::light; ///< missing or unknown

/// Boolean: whether chimes sound.
inline const QString soundEnabled = QStringLiteral("soundEnabled");
inline constexpr bool soundEnabledAtFirstLaunch = true;

/// Boolean: the marker that `soundEnabled` has been given its first value.
inline const QString hasLaunchedBefore = QStringLiteral("hasLaunchedBefore");

/// Boolean: the marker that the three values below have been given their first values.
inline const QString notificationsConfigured = QStringLiteral("notificationsConfigured");

/// Boolean: whether the morning notification is wanted.
inline const QString notificationsEnabled = QStringLiteral("notificationsEnabled");
inline constexpr bool notificationsEnabledAtFirstRun = true;

/// Integer: civil hour of the notification, 0 to 23; whatever a hand-edited store holds is read as it stands.
inline const QString notificationHour = QStringLiteral("notificationHour");
inline constexpr std::int64_t notificationHourAtFirstRun = 8;

/// Integer: minute of the notification, 0 to 59; read as it stands.
inline const QString notificationMinute = QStringLiteral("notificationMinute");
inline constexpr std::int64_t notificationMinuteAtFirstRun = 0;

} // namespace tambrelle::PreferenceKeys
