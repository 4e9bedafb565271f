// A neighbour on the bus sends calls with any arguments to the item and to its menu, and answers ours with
// anything. Both ends are here, on a connection of their own: what arrives has been marshalled and read
// as it is between two programs.

#include "platform/freedesktop/notifications/FreedesktopNotificationService.h"
#include "platform/freedesktop/statusitem/MenuObject.h"
#include "platform/freedesktop/statusitem/NotifierObject.h"
#include "tests/fuzz/BusValues.h"
#include "tests/fuzz/FuzzFile.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServer>
#include <QDBusVirtualObject>

#include <array>
#include <memory>

using namespace tambrelle;

namespace {

/// What never comes true is ended by the fuzzer's own limit of time.
template <class Condition>
void runUntil(Condition condition) {
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// A notification service that answers with whatever comes.
class StrangeService final : public QDBusVirtualObject {
public:
    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        ++asked;
        const QVariantList values = answers != nullptr ? fuzz::busValues(*answers) : QVariantList();
        const bool refuses = answers != nullptr && answers->ConsumeBool();
        connection.send(refuses ? message.createErrorReply(QStringLiteral("org.example.Strange"), QString())
                                : message.createReply(values));
        return true;
    }

    FuzzedDataProvider* answers = nullptr;
    int asked = 0;
};

/// Both ends of one connection, and what the program has on it.
struct Ends {
    Ends() {
        QObject::connect(&server, &QDBusServer::newConnection, &server,
                         [this](const QDBusConnection& connection) {
                             ours = std::make_unique<QDBusConnection>(connection);
                         });
        theirs = QDBusConnection::connectToPeer(server.address(), QStringLiteral("neighbour"));
        runUntil([this] { return ours != nullptr; });
        item.setContent({.line = QStringLiteral("23 Brumaire"), .day = 23});
        ours->registerVirtualObject(NotifierObject::path, &item);
        ours->registerVirtualObject(NotifierObject::menuPath, &menu);
        theirs.registerVirtualObject(QStringLiteral("/org/freedesktop/Notifications"), &strange);
        notifications = std::make_unique<FreedesktopNotificationService>(*ours);
    }

    QDBusServer server;
    std::unique_ptr<QDBusConnection> ours;
    QDBusConnection theirs{QString()};
    NotifierObject item{NotifierStyle{.label = true, .menu = true}};
    MenuObject menu;
    StrangeService strange;
    std::unique_ptr<FreedesktopNotificationService> notifications;
};

struct Member {
    const char* interface;
    const char* name;
};

constexpr std::array members{Member{"com.canonical.dbusmenu", "GetLayout"},
                             Member{"com.canonical.dbusmenu", "GetGroupProperties"},
                             Member{"com.canonical.dbusmenu", "GetProperty"},
                             Member{"com.canonical.dbusmenu", "Event"},
                             Member{"com.canonical.dbusmenu", "EventGroup"},
                             Member{"com.canonical.dbusmenu", "AboutToShow"},
                             Member{"com.canonical.dbusmenu", "AboutToShowGroup"},
                             Member{"org.kde.StatusNotifierItem", "Activate"},
                             Member{"org.kde.StatusNotifierItem", "ContextMenu"},
                             Member{"org.kde.StatusNotifierItem", "Scroll"},
                             Member{"org.kde.StatusNotifierItem", "SecondaryActivate"},
                             Member{"org.freedesktop.DBus.Properties", "Get"},
                             Member{"org.freedesktop.DBus.Properties", "GetAll"},
                             Member{"org.freedesktop.DBus.Properties", "Set"},
                             Member{"", "Event"},
                             Member{"", "Nothing"}};

void callThem(Ends& ends, FuzzedDataProvider& input) {
    const Member& member = members.at(input.ConsumeIntegralInRange<std::size_t>(0, members.size() - 1));
    const QString path = input.ConsumeBool() ? NotifierObject::menuPath : NotifierObject::path;
    QDBusMessage call = QDBusMessage::createMethodCall(QString(), path, QString::fromLatin1(member.interface),
                                                       QString::fromLatin1(member.name));
    // Half of the time the types that the method expects, with any values.
    call.setArguments(input.ConsumeBool() ? fuzz::busValues(input)
                                          : fuzz::expectedValues(QLatin1String(member.name), input));
    // A watcher, since only its event wakes the loop.
    const QDBusPendingCallWatcher answer(ends.theirs.asyncCall(call));
    runUntil([&answer] { return answer.isFinished(); });
}

void askThem(Ends& ends, FuzzedDataProvider& input) {
    ends.strange.answers = &input;
    const int before = ends.strange.asked;
    bool reachable = false;
    ends.notifications->whenReachable([&reachable] { reachable = true; });
    runUntil([&] { return reachable; });
    ends.notifications->show({.identifier = QStringLiteral("daily"),
                              .title = QStringLiteral("title"),
                              .body = QStringLiteral("<body>"),
                              .trigger = {}},
                             {.banner = true, .sound = input.ConsumeBool()});
    // Capabilities twice, and the notification itself.
    runUntil([&] { return ends.strange.asked == before + 3; });
    ends.strange.answers = nullptr;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments) {
    // What the toolkit cannot marshal it says, and sends an error instead.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    static const QCoreApplication application(*count, *arguments);
    fuzz::registerBusTypes();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Ends ends;
    FuzzedDataProvider input(data, size);
    if (input.ConsumeIntegralInRange(0, 7) == 0)
        askThem(ends, input);
    else
        callThem(ends, input);
    return 0;
}
