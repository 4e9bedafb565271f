#pragma once

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

struct HeaderContent {
    QString monthName;
    QString monthMeaning;
    QString monthEmoji;
    QString formattedDate;
    QString dayName;
    QString placeInDecade;
    QString civilDate;

    bool operator==(const HeaderContent&) const = default;
};

struct TimeContent {
    QString decimalTime;
    QString standardTime;

    bool operator==(const TimeContent&) const = default;
};

struct DailyItemContent {
    QString imageName;
    QString emoji;
    QString frenchName;
    QString caption;

    bool operator==(const DailyItemContent&) const = default;
};

struct EventContent {
    QString emoji;
    QString title;
    QString year; ///< empty for an event without one
    QString description;

    bool operator==(const EventContent&) const = default;
};

struct OnThisDayContent {
    std::vector<EventContent> events;

    bool operator==(const OnThisDayContent&) const = default;
};

struct GuillotineContent {
    QString daysSince;

    bool operator==(const GuillotineContent&) const = default;
};

struct FooterContent {
    QString slogan;
    bool soundEnabled = false;

    bool operator==(const FooterContent&) const = default;
};

/// All that the panel shows at one moment, in words. Two equal snapshots look the same.
struct PanelSnapshot {
    AppTheme theme = AppTheme::light;
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
