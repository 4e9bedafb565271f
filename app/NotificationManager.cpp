#include "app/NotificationManager.h"

#include "app/PreferenceKeys.h"
#include "app/Text.h"
#include "content/DailyItems.h"
#include "core/GregorianCalendar.h"
#include "core/RevolutionaryCalendar.h"
#include "platform/Clock.h"
#include "platform/UserDefaults.h"

#include <QPointer>

#include <optional>

namespace tambrelle {

namespace {

template <class T>
T configuredOr(const UserDefaults& defaults, T stored, T atFirstRun) {
    return defaults.boolean(PreferenceKeys::notificationsConfigured) ? stored : atFirstRun;
}

UserNotificationRequest morningRequest(const CalendarTrigger& trigger, Instant fireTime) {
    const RevolutionaryDate date = RevolutionaryCalendar::fromGregorian(fireTime);
    return {.identifier =
                QStringLiteral("daily-%1-%2-%3").arg(trigger.year).arg(trigger.month).arg(trigger.day),
            .title = toQString(date.formatted()),
            .body = morningNotificationBody(date),
            .trigger = trigger};
}

} // namespace

NotificationManager::NotificationManager(const NotificationServices& services)
    : services(services),
      publishedEnabled(*this, configuredOr(services.defaults,
                                           services.defaults.boolean(PreferenceKeys::notificationsEnabled),
                                           PreferenceKeys::notificationsEnabledAtFirstRun)),
      publishedHour(*this, configuredOr(services.defaults,
                                        services.defaults.integer(PreferenceKeys::notificationHour),
                                        PreferenceKeys::notificationHourAtFirstRun)),
      publishedMinute(*this, configuredOr(services.defaults,
                                          services.defaults.integer(PreferenceKeys::notificationMinute),
                                          PreferenceKeys::notificationMinuteAtFirstRun)) {
    if (services.defaults.boolean(PreferenceKeys::notificationsConfigured))
        return;
    services.defaults.setBoolean(PreferenceKeys::notificationsEnabled, enabled());
    services.defaults.setInteger(PreferenceKeys::notificationHour, hour());
    services.defaults.setInteger(PreferenceKeys::notificationMinute, minute());
    services.defaults.setBoolean(PreferenceKeys::notificationsConfigured, true);
}

NotificationManager::~NotificationManager() {
    services.center.setDelegate(nullptr);
}

void NotificationManager::setEnabled(bool value) {
    publishedEnabled = value;
    services.defaults.setBoolean(PreferenceKeys::notificationsEnabled, value);
    reschedule();
}

void NotificationManager::setHour(std::int64_t value) {
    publishedHour = value;
    services.defaults.setInteger(PreferenceKeys::notificationHour, value);
    reschedule();
}

void NotificationManager::setMinute(std::int64_t value) {
    publishedMinute = value;
    services.defaults.setInteger(PreferenceKeys::notificationMinute, value);
    reschedule();
}

void NotificationManager::start() {
    services.center.setDelegate(this);
    services.center.requestAuthorization([self = QPointer(this)](bool granted) {
        if (granted && self)
            self->reschedule();
    });
}

void NotificationManager::reschedule() {
    services.center.removeAllPending();
    if (!enabled())
        return;
    const Instant now = services.clock.now();
    for (std::int64_t offset = 0; offset < horizon; ++offset) {
        const auto day = GregorianCalendar::addingDays(offset, now);
        const auto components = day ? GregorianCalendar::components(*day) : std::nullopt;
        if (!components)
            continue;
        const CalendarTrigger trigger{.year = components->year,
                                      .month = components->month,
                                      .day = components->day,
                                      .hour = hour(),
                                      .minute = minute()};
        // Absent for a time that a change of daylight saving skips, and for the impossible times of a damaged
        // store.
        const auto fireTime = GregorianCalendar::instant(
            {trigger.year, trigger.month, trigger.day, trigger.hour, trigger.minute, 0});
        if (!fireTime || *fireTime <= now)
            continue;
        services.center.add(morningRequest(trigger, *fireTime));
    }
}

PresentationOptions NotificationManager::willPresent(const UserNotificationRequest& /*request*/) {
    return {.banner = true, .sound = true};
}

QString morningNotificationBody(const RevolutionaryDate& date) {
    if (const auto item = DailyItems::item(date))
        return toQString(item->emoji) + QStringLiteral(" Aujourd'hui : ") + toQString(item->frenchName) +
               QStringLiteral(" — ") + toQString(item->name);
    const auto& festivals = RevolutionaryCalendar::sansculottidesNames;
    const bool complementary = date.month == 13;
    if (complementary && date.day >= 1 && date.day <= static_cast<std::int64_t>(festivals.size()))
        return QStringLiteral("🎉 ") + toQString(festivals[static_cast<std::size_t>(date.day - 1)]);
    return toQString(RevolutionaryCalendar::monthEmoji(date.month)) + QLatin1Char(' ') +
           toQString(RevolutionaryCalendar::monthName(date.month));
}

} // namespace tambrelle
