#include "ui/CivilTexts.h"

#include "core/GregorianCalendar.h"

#include <QDate>
#include <QRegularExpression>
#include <QTime>

namespace tambrelle {

QString mediumDatePattern(const QLocale& locale) {
    QString pattern = locale.dateFormat(QLocale::LongFormat);
    // With the weekday goes what joins it to the rest: "dddd, d. MMMM yyyy", "yyyy. MMMM d., dddd". The
    // commas are the Latin, Arabic, Ethiopic and Chinese ones.
    static const QRegularExpression weekday(
        QStringLiteral("^ddd+(?:'[^']*')?[\\s,،፣，]*|[\\s,،፣，]*ddd+$|ddd+[\\s,،፣，]*"));
    pattern.remove(weekday);
    return pattern.replace(QStringLiteral("MMMM"), QStringLiteral("MMM")).trimmed();
}

QString timePattern(const QLocale& locale) {
    // The C locale's short time alone has seconds.
    return locale.timeFormat(QLocale::ShortFormat).remove(QStringLiteral(":ss"));
}

QString civilDateText(Instant instant, const QLocale& locale) {
    const auto components = GregorianCalendar::components(instant);
    if (!components)
        return {};
    // The toolkit's calendar has no year 0.
    const auto year = components->year > 0 ? components->year : components->year - 1;
    const QDate date(static_cast<int>(year), static_cast<int>(components->month),
                     static_cast<int>(components->day));
    return locale.toString(date, mediumDatePattern(locale));
}

QString civilTimeText(Instant instant, const QLocale& locale) {
    const auto components = GregorianCalendar::components(instant);
    if (!components)
        return {};
    const QTime time(static_cast<int>(components->hour), static_cast<int>(components->minute));
    return locale.toString(time, timePattern(locale));
}

} // namespace tambrelle
