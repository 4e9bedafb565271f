#include "app/CalendarManager.h"

#include "app/NotificationManager.h"
#include "app/PreferenceKeys.h"
#include "app/SoundManager.h"
#include "app/Text.h"
#include "content/DailyItems.h"
#include "core/DateTexts.h"
#include "core/GregorianCalendar.h"
#include "core/Precondition.h"
#include "core/RevolutionaryCalendar.h"
#include "platform/Clock.h"
#include "platform/RepeatingTimer.h"
#include "platform/UserDefaults.h"

#include <QPointer>

#include <chrono>

namespace tambrelle {

namespace {

/// One decimal second: 86,400 civil seconds by 100,000.
constexpr std::chrono::milliseconds tickInterval{864};

constexpr std::chrono::seconds sloganPeriod{300};

constexpr std::int64_t decimalNoon = 5;

template <class E>
E storedOr(const UserDefaults& defaults, const QString& key, E fallback) {
    const auto text = defaults.string(key);
    return text ? fromRawValue<E>(text->toStdString()).value_or(fallback) : fallback;
}

} // namespace

CalendarManager::CalendarManager(const CalendarServices& services)
    : CalendarManager(services, services.clock.now()) {}

CalendarManager::CalendarManager(const CalendarServices& services, Instant now)
    : services(services),
      publishedTodayDate(*this, RevolutionaryCalendar::fromGregorian(now)),
      publishedCurrentTime(*this, RevolutionaryCalendar::toDecimalTime(now)),
      publishedCurrentSlogan(*this, toQString(HistoricalData::randomSlogan(services.random))),
      publishedMenuBarFormat(*this, storedOr(services.defaults, PreferenceKeys::menuBarFormat,
                                             PreferenceKeys::menuBarFormatOtherwise)),
      publishedTheme(
          *this, storedOr(services.defaults, PreferenceKeys::appTheme, PreferenceKeys::appThemeOtherwise)),
      publishedDayOffset(*this, 0),
      publishedCurrentDate(*this, todayDate()),
      publishedViewedGregorianDate(*this, now),
      publishedDailyItem(*this, DailyItems::item(todayDate())),
      publishedViewedEvents(*this, HistoricalData::events(todayDate())),
      lastSloganChange(now),
      // No chime for the hour in which the application starts.
      lastDecimalHour(currentTime().hours) {
    startTimer();
    services.notifications.start();
}

void CalendarManager::startTimer() {
    services.timer.start(tickInterval, [self = QPointer(this)] {
        if (self)
            self->update();
    });
}

[[gnu::hot]] void CalendarManager::update() {
    // A tick that sent itself or its refresh through the event loop's queue would wake the program a second
    // and a third time.
    const ChangeGroup group(*this);
    const Instant now = services.clock.now();
    const auto [newDate, newTime] = momentReader.at(now, services.clock.zoneGeneration());
    followDayChange(newDate);
    chimeOnHourChange(newTime.hours);
    rotateSlogan(now);
    publishedCurrentTime = newTime;
}

[[gnu::hot]] void CalendarManager::followDayChange(const RevolutionaryDate& newDate) {
    // The year is left out on purpose: the same day of another year is no change of day.
    if (newDate.day == todayDate().day && newDate.month == todayDate().month)
        return;
    publishedTodayDate = newDate;
    if (dayOffset() == 0)
        refreshViewed();
    services.notifications.reschedule();
}

[[gnu::hot]] void CalendarManager::chimeOnHourChange(std::int64_t newHour) {
    if (newHour == lastDecimalHour)
        return;
    if (newHour != decimalNoon || services.sound.soundEnabled())
        services.sound.playHourChime();
    lastDecimalHour = newHour;
}

[[gnu::hot]] void CalendarManager::rotateSlogan(Instant now) {
    if (now - lastSloganChange <= sloganPeriod)
        return;
    // The draw may give the slogan on show once more.
    publishedCurrentSlogan = toQString(HistoricalData::randomSlogan(services.random));
    lastSloganChange = now;
}

void CalendarManager::refreshViewed() {
    const Instant now = services.clock.now();
    const Instant viewed = GregorianCalendar::addingDays(dayOffset(), now).value_or(now);
    const RevolutionaryDate date = RevolutionaryCalendar::fromGregorian(viewed);
    publishedViewedGregorianDate = viewed;
    publishedCurrentDate = date;
    publishedDailyItem = DailyItems::item(date);
    publishedViewedEvents = HistoricalData::events(date);
}

void CalendarManager::moveViewedDay(std::int64_t days) {
    publishedDayOffset = checkedAdd(dayOffset(), days);
    refreshViewed();
}

void CalendarManager::goToPreviousDay() {
    moveViewedDay(-1);
}

void CalendarManager::goToNextDay() {
    moveViewedDay(1);
}

void CalendarManager::goToToday() {
    if (dayOffset() == 0)
        return;
    publishedDayOffset = 0;
    refreshViewed();
}

void CalendarManager::setMenuBarFormat(MenuBarFormat format) {
    publishedMenuBarFormat = format;
    services.defaults.setString(PreferenceKeys::menuBarFormat, toQString(rawValue(format)));
}

void CalendarManager::setTheme(AppTheme theme) {
    publishedTheme = theme;
    services.defaults.setString(PreferenceKeys::appTheme, toQString(rawValue(theme)));
}

QString CalendarManager::menuBarText() const {
    return toQString(tambrelle::menuBarText(todayDate(), currentTime(), menuBarFormat()));
}

QString CalendarManager::shareableText() const {
    return toQString(tambrelle::shareableText(currentDate(), currentTime()));
}

} // namespace tambrelle
