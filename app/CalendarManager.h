#pragma once

#include "app/ObservableObject.h"
#include "app/Published.h"
#include "content/DailyItem.h"
#include "content/HistoricalData.h"
#include "core/DecimalTime.h"
#include "core/Instant.h"
#include "core/MenuBarFormat.h"
#include "core/MomentReader.h"
#include "core/RevolutionaryDate.h"
#include "ui/AppTheme.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace tambrelle {

class Clock;
class NotificationManager;
class RandomSource;
class RepeatingTimer;
class SoundManager;
class UserDefaults;

/// What the live state is driven by and drives.
struct CalendarServices {
    const Clock& clock;
    RepeatingTimer& timer;
    RandomSource& random;
    UserDefaults& defaults;
    SoundManager& sound;
    NotificationManager& notifications;
};

/// The one live state of the application: the present moment, the slogan on show, the two display
/// preferences, and the day that the panel shows. Main thread only.
class CalendarManager final : public ObservableObject {
    Q_OBJECT

public:
    /// Reads the clock and the preferences, starts the timer and the notifications. Writes no preference.
    explicit CalendarManager(const CalendarServices& services);

    /// Today's Republican date; assigned only when the civil day changes.
    [[nodiscard]] const RevolutionaryDate& todayDate() const { return publishedTodayDate.get(); }
    /// The decimal time of day; assigned on every tick.
    [[nodiscard]] const DecimalTime& currentTime() const { return publishedCurrentTime.get(); }
    /// One of HistoricalData::slogans.
    [[nodiscard]] const QString& currentSlogan() const { return publishedCurrentSlogan.get(); }
    [[nodiscard]] MenuBarFormat menuBarFormat() const { return publishedMenuBarFormat.get(); }
    [[nodiscard]] AppTheme theme() const { return publishedTheme.get(); }
    /// Viewed day minus today, in days; negative is past.
    [[nodiscard]] std::int64_t dayOffset() const { return publishedDayOffset.get(); }
    /// Republican date of the viewed day.
    [[nodiscard]] const RevolutionaryDate& currentDate() const { return publishedCurrentDate.get(); }
    /// The viewed day as an instant: that of the last refresh, moved by `dayOffset` days.
    [[nodiscard]] Instant viewedGregorianDate() const { return publishedViewedGregorianDate.get(); }
    /// The daily item of the viewed day; absent on the complementary days.
    [[nodiscard]] const std::optional<DailyItem>& dailyItem() const { return publishedDailyItem.get(); }
    /// The historical events of the viewed Republican day, in the table's order.
    [[nodiscard]] const std::vector<HistoricalData::Event>& viewedEvents() const {
        return publishedViewedEvents.get();
    }

    /// The line of the status bar; always today's.
    [[nodiscard]] QString menuBarText() const;
    /// One line about the viewed day with the present decimal time, to be copied.
    [[nodiscard]] QString shareableText() const;

    /// Each announces the change, then stores it.
    void setMenuBarFormat(MenuBarFormat format);
    void setTheme(AppTheme theme);

    /// Move the viewed day; there is no bound, and an overflow of the offset stops the program.
    void goToPreviousDay();
    void goToNextDay();
    /// Does nothing, and announces nothing, when today is shown already.
    void goToToday();

private:
    CalendarManager(const CalendarServices& services, Instant now);

    void startTimer();
    void update();
    void followDayChange(const RevolutionaryDate& newDate);
    void chimeOnHourChange(std::int64_t newHour);
    void rotateSlogan(Instant now);
    void refreshViewed();
    void moveViewedDay(std::int64_t days);

    CalendarServices services;
    Published<RevolutionaryDate> publishedTodayDate;
    Published<DecimalTime> publishedCurrentTime;
    Published<QString> publishedCurrentSlogan;
    Published<MenuBarFormat> publishedMenuBarFormat;
    Published<AppTheme> publishedTheme;
    Published<std::int64_t> publishedDayOffset;
    Published<RevolutionaryDate> publishedCurrentDate;
    Published<Instant> publishedViewedGregorianDate;
    Published<std::optional<DailyItem>> publishedDailyItem;
    Published<std::vector<HistoricalData::Event>> publishedViewedEvents;

    Instant lastSloganChange;
    std::int64_t lastDecimalHour;
    MomentReader momentReader;
};

} // namespace tambrelle
