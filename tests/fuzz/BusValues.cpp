#include "tests/fuzz/BusValues.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QString>
#include <QStringList>

namespace tambrelle::fuzz {

/// An entry of the menu, what befell it, with what, and when.
struct MenuEvent {
    int entry = 0;
    QString name;
    QDBusVariant data;
    uint time = 0;
};

static QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event) {
    argument.beginStructure();
    argument << event.entry << event.name << event.data << event.time;
    argument.endStructure();
    return argument;
}

static const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event) {
    argument.beginStructure();
    argument >> event.entry >> event.name >> event.data >> event.time;
    argument.endStructure();
    return argument;
}

} // namespace tambrelle::fuzz

Q_DECLARE_METATYPE(tambrelle::fuzz::MenuEvent)

namespace tambrelle::fuzz {

namespace {

constexpr int deepest = 4;

QString text(FuzzedDataProvider& input) {
    const std::string bytes = input.ConsumeRandomLengthString(40);
    // Neither a null character nor bytes that are no UTF-8 can be marshalled.
    return QString::fromUtf8(bytes.c_str());
}

QVariant anyValue(FuzzedDataProvider& input, int depth);

/// A number of an entry, mostly one that exists.
int entry(FuzzedDataProvider& input) {
    return input.ConsumeBool() ? input.ConsumeIntegralInRange(-1, 7) : input.ConsumeIntegral<int>();
}

MenuEvent event(FuzzedDataProvider& input, int depth) {
    return {.entry = entry(input),
            .name = input.ConsumeBool() ? QStringLiteral("clicked") : text(input),
            .data = QDBusVariant(anyValue(input, depth + 1)),
            .time = input.ConsumeIntegral<uint>()};
}

QVariant anyValue(FuzzedDataProvider& input, int depth) {
    switch (input.ConsumeIntegralInRange(0, depth < deepest ? 11 : 6)) {
    case 0:
        return input.ConsumeIntegral<int>();
    case 1:
        return input.ConsumeIntegral<uint>();
    case 2:
        return input.ConsumeBool();
    case 3:
        return text(input);
    case 4:
        return QVariant::fromValue(input.ConsumeIntegral<uchar>());
    case 5:
        return input.ConsumeFloatingPoint<double>();
    case 6:
        return QVariant::fromValue(input.ConsumeIntegral<qlonglong>());
    case 7:
        return QStringList{text(input), text(input)};
    case 8:
        return QVariant::fromValue(QDBusVariant(anyValue(input, depth + 1)));
    case 9:
        return QVariantList{anyValue(input, depth + 1), anyValue(input, depth + 1)};
    case 10:
        return QVariantMap{{text(input), anyValue(input, depth + 1)}};
    default:
        return QVariant::fromValue(event(input, depth + 1));
    }
}

QVariant numbers(FuzzedDataProvider& input) {
    QList<int> list;
    for (int left = input.ConsumeIntegralInRange(0, 40); left > 0; --left)
        list.append(input.ConsumeIntegral<int>());
    return QVariant::fromValue(list);
}

QVariant events(FuzzedDataProvider& input) {
    QList<MenuEvent> list;
    for (int left = input.ConsumeIntegralInRange(0, 5); left > 0; --left)
        list.append(event(input, 0));
    return QVariant::fromValue(list);
}

} // namespace

void registerBusTypes() {
    qDBusRegisterMetaType<MenuEvent>();
    qDBusRegisterMetaType<QList<MenuEvent>>();
    qDBusRegisterMetaType<QList<int>>();
}

QVariantList busValues(FuzzedDataProvider& input) {
    QVariantList values;
    for (int left = input.ConsumeIntegralInRange(0, 4); left > 0; --left)
        values.append(anyValue(input, 0));
    return values;
}

QVariantList expectedValues(QLatin1String method, FuzzedDataProvider& input) {
    if (method == QLatin1String("GetLayout"))
        return {entry(input), input.ConsumeIntegral<int>(), QStringList{text(input)}};
    if (method == QLatin1String("GetGroupProperties"))
        return {numbers(input), QStringList{text(input)}};
    if (method == QLatin1String("GetProperty"))
        return {entry(input), text(input)};
    if (method == QLatin1String("Event")) {
        const MenuEvent one = event(input, 0);
        return {one.entry, one.name, QVariant::fromValue(one.data), one.time};
    }
    if (method == QLatin1String("EventGroup"))
        return {events(input)};
    if (method == QLatin1String("AboutToShow"))
        return {entry(input)};
    if (method == QLatin1String("AboutToShowGroup"))
        return {numbers(input)};
    if (method == QLatin1String("Get"))
        return {text(input), text(input)};
    if (method == QLatin1String("GetAll"))
        return {text(input)};
    if (method == QLatin1String("Set"))
        return {text(input), text(input), QVariant::fromValue(QDBusVariant(anyValue(input, 0)))};
    if (method == QLatin1String("Scroll"))
        return {input.ConsumeIntegral<int>(), text(input)};
    return {input.ConsumeIntegral<int>(), input.ConsumeIntegral<int>()};
}

} // namespace tambrelle::fuzz
