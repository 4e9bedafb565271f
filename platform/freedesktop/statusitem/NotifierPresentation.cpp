#include "platform/freedesktop/statusitem/NotifierPresentation.h"

#include "platform/freedesktop/BusMessages.h"
#include "platform/freedesktop/statusitem/DayIcon.h"
#include "platform/freedesktop/statusitem/LineImage.h"
#include "platform/freedesktop/statusitem/MenuObject.h"
#include "platform/freedesktop/statusitem/NotifierWatcher.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDir>
#include <QStandardPaths>
#include <QTimer>

#include <array>
#include <chrono>

namespace tambrelle {

namespace {

/// The sizes in which bars draw square icons, at scales from 1 to 2.
constexpr std::array iconSides{16, 22, 24, 32, 44, 48};

/// A watcher that has not answered by then is taken for broken, and the line is shown without it.
constexpr std::chrono::milliseconds watcherPatience{5000};

constexpr std::chrono::milliseconds untilRegisteredAgain{1000};
constexpr int mostDrops = 5;

/// waybar tells of the second press of a double click twice over, at once.
constexpr qint64 sameClick = 20;

/// The watcher forgets an item when the name goes from the bus, so each item has a name of its own.
QString freshServiceName() {
    static int items = 0;
    return QStringLiteral("org.kde.StatusNotifierItem-%1-%2")
        .arg(QCoreApplication::applicationPid())
        .arg(++items);
}

IconPixmaps squareIcon(std::int64_t day) {
    IconPixmaps pixmaps;
    for (const int side : iconSides)
        pixmaps.append(IconPixmap::fromImage(dayIcon(day, side)));
    return pixmaps;
}

/// The day's icon as a file of this session's; empty where none can be written.
QString iconFile(std::int64_t day) {
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    const QDir folder(runtime + QStringLiteral("/tambrelle"));
    // A name for each day: bars keep pictures by their names.
    const QString file = folder.filePath(QStringLiteral("day-%1.png").arg(day));
    const bool written = !runtime.isEmpty() && folder.mkpath(QStringLiteral(".")) &&
                         dayIcon(day, iconSides.back()).save(file, "PNG");
    return written ? file : QString();
}

IconPixmaps wideLine(const QString& line) {
    IconPixmaps pixmaps;
    for (const int scale : {1, 2})
        pixmaps.append(IconPixmap::fromImage(lineImage(line, scale)));
    return pixmaps;
}

} // namespace

NotifierPresentation::NotifierPresentation(const QDBusConnection& bus, const NotifierAppearance& appearance,
                                           QObject* parent)
    : Presentation(parent),
      bus(bus),
      appearance(appearance),
      serviceName(freshServiceName()),
      item(new NotifierObject(appearance.style, this)),
      menu(new MenuObject(this)) {
    age.start();
    connect(item, &NotifierObject::activated, this, &NotifierPresentation::noteActivation);
    connect(item, &NotifierObject::changed, this, &NotifierPresentation::sendSignal);
    connect(menu, &MenuObject::panelRequested, this, [this] { emit activated(QCursor::pos()); });
    connect(menu, &MenuObject::preferencesRequested, this, &Presentation::preferencesRequested);
    connect(menu, &MenuObject::quitRequested, this, &Presentation::quitRequested);
}

NotifierPresentation::~NotifierPresentation() {
    bus.unregisterObject(NotifierObject::path);
    bus.unregisterObject(NotifierObject::menuPath);
    bus.send(callToBus(QStringLiteral("ReleaseName"), {serviceName}));
}

void NotifierPresentation::present(const StatusItemContent& content) {
    item->setContent(content);
    if (appearance.wideLine)
        item->setIcon(wideLine(content.line));
    else if (shownDay != content.day)
        item->setIcon(squareIcon(content.day));
    if (appearance.iconFromFile && shownDay != content.day)
        item->setIconFile(iconFile(content.day));
    shownDay = content.day;
    menu->setLine(content.line);
    if (!announced)
        claimName();
    announced = true;
}

void NotifierPresentation::noteActivation(QPoint position) {
    if (sinceActivated.isValid() && !sinceActivated.hasExpired(sameClick))
        return;
    sinceActivated.start();
    emit activated(position);
}

void NotifierPresentation::claimName() {
    bus.registerVirtualObject(NotifierObject::path, item);
    if (appearance.style.menu)
        bus.registerVirtualObject(NotifierObject::menuPath, menu);
    // From any sender: to be given one by its name, the toolkit would ask the bus for its owner, and wait.
    bus.connect(QString(), NotifierWatcher::objectPath, NotifierWatcher::service,
                QStringLiteral("StatusNotifierItemUnregistered"), this,
                SLOT(noteUnregistered(QString, QDBusMessage)));
    auto* claim = new QDBusPendingCallWatcher(bus.asyncCall(requestName(serviceName)), this);
    connect(claim, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* call) {
        call->deleteLater();
        if (call->isError())
            emit refused();
        else
            registerWithWatcher();
    });
}

void NotifierPresentation::noteUnregistered(const QString& dropped, const QDBusMessage& signal) {
    // A watcher under load may drop an item that was slow to answer it, and never ask again.
    if (!dropped.startsWith(serviceName) || (!watcher.isEmpty() && signal.service() != watcher))
        return;
    if (drops.add(std::chrono::milliseconds(age.elapsed())) > mostDrops)
        emit refused();
    else
        QTimer::singleShot(untilRegisteredAgain, this, &NotifierPresentation::registerWithWatcher);
}

void NotifierPresentation::registerWithWatcher() {
    QDBusMessage call = QDBusMessage::createMethodCall(NotifierWatcher::service, NotifierWatcher::objectPath,
                                                       NotifierWatcher::service,
                                                       QStringLiteral("RegisterStatusNotifierItem"));
    call.setArguments({serviceName});
    auto* registration =
        new QDBusPendingCallWatcher(bus.asyncCall(call, static_cast<int>(watcherPatience.count())), this);
    connect(registration, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* answer) {
        answer->deleteLater();
        watcher = answer->reply().service();
        if (answer->isError())
            emit refused();
    });
}

void NotifierPresentation::sendSignal(const QString& name, const QVariantList& arguments) {
    // Until the item is on the bus nobody listens.
    if (!announced)
        return;
    QDBusMessage signal =
        QDBusMessage::createSignal(NotifierObject::path, QStringLiteral("org.kde.StatusNotifierItem"), name);
    signal.setArguments(arguments);
    bus.send(signal);
}

} // namespace tambrelle
