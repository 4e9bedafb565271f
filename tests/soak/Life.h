#pragma once

#include "tests/soak/Chance.h"
#include "tests/soak/Household.h"
#include "tests/soak/MorningsModel.h"
#include "tests/soak/WallClock.h"

#include <QObject>

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tambrelle::soak {

/// What a life has gone through, for the reader of a run.
struct Tally {
    std::int64_t ticks = 0;
    std::int64_t days = 0;
    std::int64_t wholeDays = 0; ///< of 24 hours that nothing disturbed
    std::int64_t checkedMornings = 0;
    std::int64_t checkedChimes = 0;
    std::int64_t mornings = 0;
    std::int64_t chimes = 0;
    std::int64_t beeps = 0;
    std::int64_t acts = 0;
    std::int64_t jumps = 0;
    std::int64_t zones = 0;
    std::int64_t starts = 0;
};

/// The program's life in ticks of 864 ms, with a user who does anything at any time, a clock that jumps, a
/// traveller's zones, and services that fail. After each tick the program must be where a plain model of it
/// is; what differs is thrown as a Violation.
class Life final {
public:
    explicit Life(std::uint64_t seed);
    ~Life();

    Life(const Life&) = delete;
    Life& operator=(const Life&) = delete;

    void tick();

    [[nodiscard]] const Tally& tally() const { return tallied; }
    /// Where in its life it is and what happened last.
    [[nodiscard]] std::string whereabouts() const;

private:
    /// What the program must be by now.
    struct Model {
        RevolutionaryDate today{};
        DecimalTime time{};
        std::int64_t offset = 0;
        Instant viewed{};
        RevolutionaryDate viewedDate{};
        Instant lastSlogan{};
        QString slogan;
        MenuBarFormat format = MenuBarFormat::dateAndTime;
        AppTheme theme = AppTheme::light;
        bool soundEnabled = true;
        std::int64_t chimes = 0;
        std::int64_t beeps = 0;
    };

    /// What is known of the civil day since its midnight.
    struct Day {
        bool wasPeaceful = false;    ///< No jump, no other zone, no new start.
        bool hadOneReminder = false; ///< Its time and its switch were left alone.
        bool couldChime = false;     ///< Chimes were on all the time.
        std::int64_t chimes = 0;     ///< Of the hours, not those that the user tried.
        std::int64_t mornings = 0;
        Instant midnight{};
    };

    void start();
    void end();
    void something();
    void userActs();
    void navigate();
    void chooseAppearance();
    void switchChime();
    void tryChime();
    void setReminder();
    void worldChanges();
    void clockJumps();
    void travel();
    void servicesChange();
    void restart(bool withoutPreferences);

    void expectTick(Instant now);
    void expectDayChange(Instant now, const RevolutionaryDate& date);
    void expectChime();
    void refreshViewed();
    void lookAtMornings();

    void compare();
    void compareDays() const;
    void compareViewed() const;
    void compareMornings();
    void compareChimes();
    void compareLine();
    void closeDay(Instant now);

    void note(std::string what);

    Chance chance;
    Surroundings around;
    std::unique_ptr<Household> program;
    std::string zone;
    std::optional<WallClock> wall;
    Model model;
    MorningsModel mornings;
    Day day;
    Instant now;
    std::int64_t announcements = 0;
    std::int64_t expectedAnnouncements = 0;
    std::optional<std::int64_t> shownMinute; ///< When the line was compared last.
    StatusItemContent line;
    std::unique_ptr<QObject> listener;
    std::deque<std::string> events;
    Tally tallied;
};

} // namespace tambrelle::soak
