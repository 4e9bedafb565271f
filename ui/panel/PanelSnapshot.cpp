#include "ui/panel/PanelSnapshot.h"

#include "app/CalendarManager.h"
#include "app/SoundManager.h"
#include "app/Text.h"
#include "core/RevolutionaryCalendar.h"
#include "ui/CivilTexts.h"

#include <algorithm>

namespace tambrelle {

namespace {

HeaderContent headerContent(const CalendarManager& manager, const QLocale& locale) {
    const RevolutionaryDate& date = manager.currentDate();
    return {
        .monthName = toQString(RevolutionaryCalendar::monthName(date.month)).toUpper(),
        .monthMeaning =
            QLatin1Char('"') + toQString(RevolutionaryCalendar::monthMeaning(date.month)) + QLatin1Char('"'),
        .monthEmoji = toQString(RevolutionaryCalendar::monthEmoji(date.month)),
        .formattedDate = toQString(date.formatted()),
        .dayName = toQString(RevolutionaryCalendar::dayName(date.decadeDay)),
        .placeInDecade = ordinal(date.decadeDay) + QStringLiteral(" of décade"),
        .civilDate = civilDateText(manager.viewedGregorianDate(), locale),
    };
}

TimeContent timeContent(const CalendarManager& manager, const SnapshotContext& context) {
    const DecimalTime& time = manager.currentTime();
    return {
        .decimalTime = QStringLiteral("%1:%2:%3")
                           .arg(time.hours)
                           .arg(time.minutes, 2, 10, QLatin1Char('0'))
                           .arg(time.seconds, 2, 10, QLatin1Char('0')),
        .standardTime = civilTimeText(context.now, context.locale),
    };
}

std::optional<DailyItemContent> dailyItemContent(const CalendarManager& manager) {
    const std::optional<DailyItem>& item = manager.dailyItem();
    if (!item)
        return std::nullopt;
    return DailyItemContent{
        .imageName = toQString(item->imageName()),
        .emoji = toQString(item->emoji),
        .frenchName = toQString(item->frenchName),
        .caption = toQString(item->name) + QStringLiteral(" • ") + toQString(rawValue(item->category)),
    };
}

EventContent eventContent(const HistoricalData::Event& event) {
    return {
        .emoji = toQString(event.emoji),
        .title = toQString(event.title),
        .year = event.year
                    ? QStringLiteral("(An %1)").arg(toQString(RevolutionaryCalendar::toRoman(*event.year)))
                    : QString(),
        .description = toQString(event.description),
    };
}

} // namespace

PanelSnapshot panelSnapshot(const CalendarManager& manager, const SoundManager& sound,
                            const SnapshotContext& context) {
    return {
        .theme = manager.theme(),
        .onToday = manager.dayOffset() == 0,
        .header = headerContent(manager, context.locale),
        .time = timeContent(manager, context),
        .dailyItem = dailyItemContent(manager),
        .onThisDay = onThisDayContent(manager.viewedEvents()),
        .guillotine = {.daysSince =
                           context.locale.toString(HistoricalData::daysSinceLastGuillotine(context.now))},
        .footer = {.slogan = manager.currentSlogan(), .soundEnabled = sound.soundEnabled()},
    };
}

OnThisDayContent onThisDayContent(const std::vector<HistoricalData::Event>& events) {
    OnThisDayContent content;
    for (std::size_t index = 0; index < std::min(events.size(), shownEvents); ++index)
        content.events.push_back(eventContent(events[index]));
    return content;
}

QString ordinal(std::int64_t number) {
    const QString text = QString::number(number);
    switch (number) {
    case 1:
        return text + QStringLiteral("st");
    case 2:
        return text + QStringLiteral("nd");
    case 3:
        return text + QStringLiteral("rd");
    default:
        return text + QStringLiteral("th");
    }
}

} // namespace tambrelle
