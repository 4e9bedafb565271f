#include "tests/soak/Life.h"

#include "content/DailyItems.h"
#include "core/RawValue.h"
#include "tests/soak/Require.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>

namespace tambrelle::soak {

namespace {

using namespace std::chrono_literals;
using namespace std::chrono;

constexpr auto tickLength = 864ms;

/// A slogan stays for longer than this.
constexpr auto sloganLife = 300s;

/// Ticks between two looks at the clock that the desktop's side promises: half a minute.
constexpr std::int64_t ticksBetweenLooks = 34;

constexpr std::int64_t minutesPerDay = 1440;

/// On average; a day has 100,000 ticks.
constexpr std::uint64_t ticksBetweenEvents = 5000;

/// Summer time on either half of the globe, half an hour of it, none, changes at midnight, the date line.
constexpr std::array zones{"Europe/Paris",       "America/New_York",    "Asia/Tokyo",
                           "Pacific/Kiritimati", "Australia/Lord_Howe", "America/St_Johns",
                           "Asia/Kathmandu",     "Africa/Cairo",        "America/Havana",
                           "Asia/Beirut",        "Pacific/Auckland",    "Pacific/Pago_Pago"};

constexpr Instant beginning = sys_days(2026y / January / 1) + 11h;
constexpr Instant earliest = sys_days(2001y / January / 1);
constexpr Instant latest = sys_days(2089y / January / 1);

template <class E>
E anyCase(Chance& chance) {
    const auto cases = allCases<E>();
    return cases[static_cast<std::size_t>(chance.between(0, static_cast<std::int64_t>(cases.size()) - 1))];
}

/// The event loop's turn after a tick, and the next one with what that turn asked for.
void runTwoTurns() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents();
}

const DailyItem& itemOf(const RevolutionaryDate& date) {
    return DailyItems::all.at(static_cast<std::size_t>((date.month - 1) * 30 + date.day - 1));
}

} // namespace

Life::Life(std::uint64_t seed) : chance(seed), around(chance), now(beginning) {
    around.clock.set(now);
    travel();
    start();
    mornings.shown.reserve(MorningsModel::horizon);
}

Life::~Life() = default;

void Life::start() {
    ++tallied.starts;
    program = std::make_unique<Household>(around);
    listener = std::make_unique<QObject>();
    QObject::connect(&program->calendar, &ObservableObject::objectWillChange, listener.get(),
                     [this] { ++announcements; });
    model.today = wall->dateAt(now);
    model.time = wall->timeAt(now);
    model.offset = 0;
    model.viewed = now;
    model.viewedDate = model.today;
    model.lastSlogan = now;
    model.slogan = program->calendar.currentSlogan();
    mornings.forget();
    compareLine();
    require(program->calendar.menuBarFormat() == model.format,
            "the stored format is not what it starts with");
    require(program->calendar.theme() == model.theme, "the stored theme is not what it starts with");
    require(program->sound.soundEnabled() == model.soundEnabled, "the stored chime switch is lost");
    require(program->notifications.enabled() == mornings.enabled, "the stored reminder switch is lost");
    require(program->notifications.hour() == mornings.hour &&
                program->notifications.minute() == mornings.minute,
            "the stored time of the reminder is lost");
}

void Life::end() {
    // What is due at this moment has its last chance with the event loop's next turn, which does not come.
    runTwoTurns();
    program.reset();
    around.notificationService = fakes::FakeNotificationService();
    require(!around.wakeUp.armed, "the wake-up outlives its owner");
}

void Life::note(std::string what) {
    constexpr std::size_t remembered = 12;
    events.push_back(std::to_string(tallied.ticks) + ": " + std::move(what));
    if (events.size() > remembered)
        events.pop_front();
}

std::string Life::whereabouts() const {
    std::string text = "tick " + std::to_string(tallied.ticks) + ", zone " + zone + ", " +
                       std::to_string(now.time_since_epoch().count()) + " us since 1970";
    for (const auto& event : events)
        text += "\n  " + event;
    return text;
}

void Life::tick() {
    ++tallied.ticks;
    now += tickLength;
    const bool happens = chance.oneIn(ticksBetweenEvents);
    const bool before = happens && chance.oneIn(2);
    around.clock.set(now);
    if (before)
        something();
    lookAtMornings();
    expectTick(now);
    around.timer.fire();
    runTwoTurns();
    compare();
    compareDays();
    if (happens && !before)
        something();
}

void Life::lookAtMornings() {
    const auto& armed = around.wakeUp.armed;
    const bool isRegular = tallied.ticks % ticksBetweenLooks == 0;
    if (!isRegular && (!armed || now < *armed))
        return;
    around.wakeUp.look();
    if (mornings.isDue(now))
        mornings.deliver(now);
}

// What the model does

void Life::expectTick(Instant at) {
    const std::int64_t hourBefore = model.time.hours;
    const RevolutionaryDate date = wall->dateAt(at);
    if (date.day != model.today.day || date.month != model.today.month)
        expectDayChange(at, date);
    model.time = wall->timeAt(at);
    if (model.time.hours != hourBefore) {
        expectChime();
        ++day.chimes;
    }
    if (at - model.lastSlogan > sloganLife) {
        model.lastSlogan = at;
        model.slogan.clear();
        ++expectedAnnouncements;
    }
    ++expectedAnnouncements;
}

void Life::expectDayChange(Instant at, const RevolutionaryDate& date) {
    closeDay(at);
    model.today = date;
    ++expectedAnnouncements;
    if (model.offset == 0)
        refreshViewed();
    mornings.reschedule(*wall, at);
}

void Life::expectChime() {
    if (!model.soundEnabled)
        return;
    const bool hasFile = !around.resources.files.isEmpty();
    model.chimes += hasFile ? 1 : 0;
    model.beeps += !hasFile || around.audioPlayer.error ? 1 : 0;
}

void Life::refreshViewed() {
    model.viewed = wall->plusDays(now, model.offset);
    model.viewedDate = wall->dateAt(model.viewed);
    expectedAnnouncements += 4;
}

void Life::closeDay(Instant at) {
    ++tallied.days;
    const auto yesterday = wall->dayAt(at) - days(1);
    const bool was24Hours = at - day.midnight < 24h + tickLength && at - day.midnight > 24h - tickLength;
    if (day.wasPeaceful && was24Hours) {
        ++tallied.wholeDays;
        // Once for each of the ten hours, midnight's at the day's first tick.
        if (day.couldChime && model.soundEnabled) {
            require(day.chimes == 10, "not ten chimes in a peaceful day");
            tallied.checkedChimes += 10;
        }
        if (day.hadOneReminder && mornings.enabled &&
            wall->first(yesterday, mornings.hour, mornings.minute)) {
            require(day.mornings == 1, "not one morning in a peaceful day");
            ++tallied.checkedMornings;
        }
    }
    day = {.wasPeaceful = true, .hadOneReminder = true, .couldChime = model.soundEnabled, .midnight = at};
}

// What happens

void Life::something() {
    if (chance.oneIn(4))
        worldChanges();
    else
        userActs();
}

void Life::userActs() {
    ++tallied.acts;
    // What disturbs a morning or a chime is rare enough that there are days without.
    const auto act = chance.between(0, 119);
    if (act < 72)
        navigate();
    else if (act < 114)
        chooseAppearance();
    else if (act < 116)
        switchChime();
    else if (act < 118)
        setReminder();
    else
        tryChime();
    runTwoTurns();
    compare();
}

void Life::navigate() {
    const auto steps = chance.oneIn(10) ? chance.between(1, 800) : chance.between(1, 3);
    note("goes " + std::to_string(steps) + " days");
    switch (chance.between(0, 2)) {
    case 0:
        for (std::int64_t step = 0; step < steps; ++step) {
            program->calendar.goToPreviousDay();
            --model.offset;
            ++expectedAnnouncements;
            refreshViewed();
        }
        break;
    case 1:
        for (std::int64_t step = 0; step < steps; ++step) {
            program->calendar.goToNextDay();
            ++model.offset;
            ++expectedAnnouncements;
            refreshViewed();
        }
        break;
    default:
        program->calendar.goToToday();
        if (model.offset != 0) {
            model.offset = 0;
            ++expectedAnnouncements;
            refreshViewed();
        }
    }
}

void Life::chooseAppearance() {
    if (chance.oneIn(2)) {
        note("chooses a format");
        model.format = anyCase<MenuBarFormat>(chance);
        program->calendar.setMenuBarFormat(model.format);
        shownMinute.reset();
    } else {
        note("chooses a theme");
        model.theme = anyCase<AppTheme>(chance);
        program->calendar.setTheme(model.theme);
    }
    ++expectedAnnouncements;
}

void Life::switchChime() {
    note("switches the chime");
    // More often on than off: what is off shows nothing to be checked.
    model.soundEnabled = !chance.oneIn(4);
    program->sound.setSoundEnabled(model.soundEnabled);
    day.couldChime = false;
}

void Life::tryChime() {
    note("tries the chime");
    program->sound.playHourChime();
    expectChime();
}

void Life::setReminder() {
    day.hadOneReminder = false;
    switch (chance.between(0, 3)) {
    case 0:
        mornings.enabled = !chance.oneIn(4);
        note("switches the reminder");
        program->notifications.setEnabled(mornings.enabled);
        break;
    case 1:
        mornings.hour = chance.between(0, 23);
        note("sets the hour " + std::to_string(mornings.hour));
        program->notifications.setHour(mornings.hour);
        break;
    case 2:
        mornings.minute = chance.between(0, 59);
        note("sets the minute");
        program->notifications.setMinute(mornings.minute);
        break;
    default: {
        // The present minute or one beside it, where off-by-ones live.
        const std::int64_t wanted = (wall->secondsAt(now) / 60 + chance.between(-1, 2)) % minutesPerDay;
        mornings.hour = wanted / 60;
        note("sets the time close to now");
        program->notifications.setHour(mornings.hour);
        mornings.reschedule(*wall, now);
        mornings.minute = wanted % 60;
        program->notifications.setMinute(mornings.minute);
    }
    }
    mornings.reschedule(*wall, now);
}

void Life::worldChanges() {
    const auto change = chance.between(0, 29);
    if (change < 2)
        clockJumps();
    else if (change == 2)
        travel();
    else if (change == 3)
        restart(chance.oneIn(4));
    else
        servicesChange();
}

void Life::clockJumps() {
    ++tallied.jumps;
    day = {};
    switch (chance.between(0, 9)) {
    case 0: // the same day of another year, which is no change of day
        now = wall->plusDays(now, chance.oneIn(2) ? 365 : -366);
        break;
    case 1:
        now -= minutes(chance.between(1, 3000));
        break;
    case 2:
    case 3: // a time server
        now += milliseconds(chance.between(-5000, 5000));
        break;
    case 4:
        now += days(chance.between(1, 20));
        break;
    default: // sleep
        now += minutes(chance.between(1, 1500));
    }
    if (now < earliest || now > latest)
        now = beginning;
    note("the clock jumps");
    around.clock.set(now);
}

void Life::travel() {
    ++tallied.zones;
    day = {};
    zone = zones[static_cast<std::size_t>(chance.between(0, std::ssize(zones) - 1))];
    note("travels to " + zone);
    ::setenv("TZ", zone.c_str(), 1);
    ::tzset();
    around.clock.beginZoneGeneration();
    wall.emplace(zone);
    mornings.moveTo(*wall);
}

void Life::servicesChange() {
    switch (chance.between(0, 2)) {
    case 0:
        if (!around.notificationService.isAwaited())
            return;
        note("a notification service answers");
        around.notificationService.answer();
        mornings.reschedule(*wall, now);
        day.hadOneReminder = false;
        break;
    case 1:
        note("the player's fate changes");
        around.audioPlayer.error =
            chance.oneIn(3) ? std::optional(QStringLiteral("out of order")) : std::nullopt;
        break;
    default:
        note("the chime's fate changes");
        if (chance.oneIn(4))
            around.resources.files.clear();
        else
            around.resources.add(QStringLiteral("marseillaise.mp3"));
    }
}

void Life::restart(bool withoutPreferences) {
    note(withoutPreferences ? "loses its preferences" : "is started anew");
    end();
    if (withoutPreferences) {
        QFile file(around.preferenceFile());
        if (chance.oneIn(2)) {
            file.remove();
        } else if (file.open(QIODevice::WriteOnly)) {
            // Beyond any size of ours, so that it counts as damaged.
            for (int word = 0; word < 10'000; ++word) {
                const std::uint64_t noise = chance.next();
                file.write(reinterpret_cast<const char*>(&noise), sizeof noise);
            }
        }
        file.close();
        model.format = MenuBarFormat::dateAndTime;
        model.theme = AppTheme::light;
        model.soundEnabled = true;
        mornings.enabled = true;
        mornings.hour = 8;
        mornings.minute = 0;
    }
    day = {};
    start();
}

// What must hold

void Life::compare() {
    const CalendarManager& calendar = program->calendar;
    require(calendar.currentTime() == model.time, "the decimal time is another");
    require(calendar.todayDate() == model.today, "today is another day");
    require(calendar.dayOffset() == model.offset, "the viewed day is at another distance");
    require(calendar.currentDate() == model.viewedDate, "the viewed day is another");
    require(announcements == expectedAnnouncements, "another number of changes was announced");
    if (model.slogan.isEmpty()) {
        model.slogan = calendar.currentSlogan();
        require(std::ranges::find(HistoricalData::slogans, model.slogan.toStdString()) !=
                    HistoricalData::slogans.end(),
                "a slogan that is in no table");
    }
    require(calendar.currentSlogan() == model.slogan, "the slogan changed early");
    compareChimes();
    compareMornings();
    if (shownMinute != model.time.minutes)
        compareLine();
}

void Life::compareDays() const {
    // The year is left out: a jump to the same day of another year is no change of day.
    const CalendarManager& calendar = program->calendar;
    require(calendar.dayOffset() != 0 || (calendar.currentDate().day == calendar.todayDate().day &&
                                          calendar.currentDate().month == calendar.todayDate().month),
            "the panel is on today and shows another day");
}

void Life::compareViewed() const {
    const CalendarManager& calendar = program->calendar;
    require(calendar.viewedGregorianDate() == model.viewed, "the viewed instant is another");
    const bool isComplementary = model.viewedDate.month == 13;
    require(calendar.dailyItem().has_value() != isComplementary, "an item too many or too few");
    require(isComplementary || calendar.dailyItem()->name == itemOf(model.viewedDate).name,
            "another day's item");
    require(calendar.viewedEvents() == HistoricalData::events(model.viewedDate), "another day's events");
    require(calendar.menuBarFormat() == model.format && calendar.theme() == model.theme,
            "a preference has changed by itself");
}

void Life::compareChimes() {
    auto& played = around.audioPlayer.played;
    if (played.empty() && model.chimes == 0 && around.systemSound.beeps == model.beeps)
        return;
    require(std::ssize(played) == model.chimes, "a chime is missing or doubled");
    require(around.systemSound.beeps == model.beeps, "an alert is missing or doubled");
    tallied.chimes += model.chimes;
    tallied.beeps += model.beeps;
    played.clear();
    model.chimes = model.beeps = around.systemSound.beeps = 0;
    around.resources.lookedUp.clear();
}

void Life::compareMornings() {
    auto& shown = around.notificationService.shown;
    if (shown.empty() && mornings.shown.empty())
        return;
    require(shown.size() == mornings.shown.size(), "a morning is missing or doubled");
    for (std::size_t index = 0; index < shown.size(); ++index) {
        require(shown[index].identifier == mornings.shown[index], "another morning");
        require(!shown[index].title.isEmpty() && !shown[index].body.isEmpty(), "a morning without words");
    }
    day.mornings += std::ssize(shown);
    tallied.mornings += std::ssize(shown);
    shown.clear();
    mornings.shown.clear();
    require(program->center.pending().size() == mornings.pending(), "another number of mornings is pending");
    require(mornings.pending() <= MorningsModel::horizon, "more mornings than the horizon");
}

void Life::compareLine() {
    compareViewed();
    shownMinute = model.time.minutes;
    auto& presented = around.statusItem.presented;
    if (!presented.empty())
        line = presented.back();
    presented.clear();
    require(line.line == program->calendar.menuBarText() && line.day == model.today.day,
            "the bar shows an old line");
}

} // namespace tambrelle::soak
