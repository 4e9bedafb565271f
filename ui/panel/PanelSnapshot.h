#pragma once

#include "app/PreferenceKeys.h"
#include "content/HistoricalData.h"
#include "core/Instant.h"
#include "ui/AppTheme.h"

#include <QLocale>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace tambrelle {

class CalendarManager;
class SoundManager;

/// The viewed day at the head of the panel.
struct HeaderContent {
    QString monthName;     ///< in capitals
    QString monthMeaning;  ///< in English, in quotation marks
    QString monthEmoji;    ///< one user-perceived character
    QString formattedDate; ///< the Republican date in full, with its Roman year
    QString dayName;       ///< of the ten-day décade
    QString placeInDecade; ///< with an ordinal, such as "3rd of décade"
    QString civilDate;     ///< Gregorian, in the locale's way

    bool operator==(const HeaderContent&) const = default;
};

/// The present time, also while another day is viewed.
struct TimeContent {
    QString decimalTime;  ///< hour, minute and second, such as "5:00:00"
    QString standardTime; ///< hour and minute in the locale's way

    bool operator==(const TimeContent&) const = default;
};

/// The plant, animal, tool or mineral of the viewed day.
struct DailyItemContent {
    QString imageName; ///< of its plate, without folder and ending
    QString emoji;     ///< what stands in for a plate that is missing
    QString frenchName;
    QString caption; ///< the English name and the kind

    bool operator==(const DailyItemContent&) const = default;
};

/// One event of the viewed day's month and day.
struct EventContent {
    QString emoji;
    QString title;
    QString year; ///< Roman, in parentheses; empty for an event without one
    QString description;

    bool operator==(const EventContent&) const = default;
};

struct OnThisDayContent {
    std::vector<EventContent> events; ///< at most `shownEvents`

    bool operator==(const OnThisDayContent&) const = default;
};

struct GuillotineContent {
    QString daysSince; ///< whole days until now, with the locale's grouping of digits

    bool operator==(const GuillotineContent&) const = default;
};

struct FooterContent {
    QString slogan;
    bool soundEnabled = false; ///< whether the hourly chime sounds

    bool operator==(const FooterContent&) const = default;
};

/// All that the panel shows at one moment, in words. Two equal snapshots look the same.
struct PanelSnapshot {
    AppTheme theme = PreferenceKeys::appThemeOtherwise;
    bool onToday = true;
    HeaderContent header;
    TimeContent time;
    std::optional<DailyItemContent> dailyItem;
    OnThisDayContent onThisDay; ///< without events the section is left out
    GuillotineContent guillotine;
    FooterContent footer;

    bool operator==(const PanelSnapshot&) const = default;
};

/// The most events of a day that are shown.
inline constexpr std::size_t shownEvents = 3;

/// Where a snapshot's moment and manner of writing come from.
struct SnapshotContext {
    Instant now;
    QLocale locale;
};

[[nodiscard]] PanelSnapshot panelSnapshot(const CalendarManager& manager, const SoundManager& sound,
                                          const SnapshotContext& context);

/// The first of a day's events, `shownEvents` at most, in their order.
[[nodiscard]] OnThisDayContent onThisDayContent(const std::vector<HistoricalData::Event>& events);

/// The number with its English ending: "1st", "2nd", "3rd", and "th" after every other.
[[nodiscard]] QString ordinal(std::int64_t number);

} // namespace tambrelle
