#include "platform/freedesktop/notifications/FreedesktopNotificationService.h"

#include "tests/platform/RecordingServer.h"
#include "tests/support/EventLoop.h"
#include "tests/support/PrivateBus.h"

#include <QDBusConnection>
#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <memory>

using namespace tambrelle;
using namespace std::chrono_literals;

namespace {

using test::RecordingServer;

const QString serviceName = QStringLiteral("org.freedesktop.Notifications");

UserNotificationRequest morning(const QString& body = QStringLiteral("🍇 Raisin")) {
    return {.identifier = QStringLiteral("daily-2026-3-7"),
            .title = QStringLiteral("17 Ventôse, An CCXXXIV"),
            .body = body,
            .trigger = {}};
}

constexpr PresentationOptions both{.banner = true, .sound = true};

class FreedesktopNotificationServiceTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(bus.isRunning()) << "no dbus-daemon"; }

    void startServer() {
        ASSERT_TRUE(serverSide.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &server,
                                              QDBusConnection::ExportAllSlots));
        ASSERT_TRUE(serverSide.registerService(serviceName));
    }

    void stopServer() {
        ASSERT_TRUE(serverSide.unregisterService(serviceName));
        serverSide.unregisterObject(QStringLiteral("/org/freedesktop/Notifications"));
    }

    bool waitForShown(std::size_t count) {
        return test::waitUntil([&] { return server.shown.size() >= count; });
    }

    /// The bus carries messages in order: when this comes back, all sent before it has been dealt with.
    void settle() {
        bool back = false;
        QObject context;
        probe = std::make_unique<FreedesktopNotificationService>(clientSide);
        probe->whenReachable([&back] { back = true; });
        EXPECT_TRUE(test::waitUntil([&] { return back; }));
    }

    /// The bus itself answers after it has refused the calls before, which were for a service that is not
    /// there.
    void settleWithoutAService() {
        const QDBusMessage reply = test::callAndWait(
            clientSide,
            QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/"),
                                           QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")));
        EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage);
        test::runQueued();
    }

    test::PrivateBus bus;
    QDBusConnection clientSide = bus.connect();
    QDBusConnection serverSide = bus.connect();
    RecordingServer server;
    FreedesktopNotificationService service{clientSide};
    std::unique_ptr<FreedesktopNotificationService> probe;
};

} // namespace

TEST_F(FreedesktopNotificationServiceTest, SendsTitleBodyAndHints) {
    startServer();
    service.show(morning(), both);
    ASSERT_TRUE(waitForShown(1));
    const test::Shown& shown = server.shown.front();
    EXPECT_EQ(shown.application, "Tambrelle");
    EXPECT_EQ(shown.replaces, 0U);
    EXPECT_EQ(shown.summary, morning().title);
    EXPECT_EQ(shown.body, morning().body);
    EXPECT_TRUE(shown.actions.isEmpty());
    EXPECT_EQ(shown.expiry, -1);
    EXPECT_EQ(shown.hints.value("desktop-entry"), "org.tambrelle.Tambrelle");
    EXPECT_EQ(shown.hints.value("urgency").metaType(), QMetaType::fromType<uchar>());
    EXPECT_EQ(shown.hints.value("urgency").toInt(), 1);
    EXPECT_FALSE(shown.hints.value("category").toString().isEmpty());
    EXPECT_FALSE(shown.hints.value("sound-name").toString().isEmpty());
    EXPECT_FALSE(shown.hints.contains("suppress-sound"));
}

TEST_F(FreedesktopNotificationServiceTest, EscapesTheBodyOnlyForAServiceThatReadsMarkup) {
    const QString body = QStringLiteral("Sel & <Fer>");
    startServer();
    service.show(morning(body), both);
    ASSERT_TRUE(waitForShown(1));
    EXPECT_EQ(server.shown.back().body, body);
    server.capabilities.append(QStringLiteral("body-markup"));
    service.show(morning(body), both);
    ASSERT_TRUE(waitForShown(2));
    EXPECT_EQ(server.shown.back().body, "Sel &amp; &lt;Fer&gt;");
    EXPECT_EQ(server.shown.back().summary, morning().title);
}

TEST_F(FreedesktopNotificationServiceTest, AsksForSilence) {
    startServer();
    service.show(morning(), {.banner = true, .sound = false});
    ASSERT_TRUE(waitForShown(1));
    EXPECT_EQ(server.shown.back().hints.value("suppress-sound"), true);
    EXPECT_FALSE(server.shown.back().hints.contains("sound-name"));
}

TEST_F(FreedesktopNotificationServiceTest, IsReachableOnceAServiceAnswers) {
    int calls = 0;
    service.whenReachable([&] { ++calls; });
    settleWithoutAService();
    EXPECT_EQ(calls, 0);
    startServer();
    EXPECT_TRUE(test::waitUntil([&] { return calls == 1; }));
    stopServer();
    startServer();
    settle();
    EXPECT_EQ(calls, 1);
}

TEST_F(FreedesktopNotificationServiceTest, IsReachableWhenAServiceAnswersWithAnError) {
    server.manner = RecordingServer::Manner::Refuses;
    startServer();
    bool reachable = false;
    service.whenReachable([&] { reachable = true; });
    EXPECT_TRUE(test::waitUntil([&] { return reachable; }));
}

TEST_F(FreedesktopNotificationServiceTest, ShowsTheLastMorningWhenAServiceStartsLate) {
    service.show(morning(QStringLiteral("yesterday")), both);
    service.show(morning(QStringLiteral("today")), both);
    settleWithoutAService();
    startServer();
    ASSERT_TRUE(waitForShown(1));
    settle();
    EXPECT_EQ(server.shown.size(), 1U);
    EXPECT_EQ(server.shown.front().body, "today");
}

TEST_F(FreedesktopNotificationServiceTest, ShowsTheNextMorningAfterTheServiceRestarted) {
    startServer();
    service.show(morning(QStringLiteral("one")), both);
    ASSERT_TRUE(waitForShown(1));
    stopServer();
    startServer();
    settle();
    EXPECT_EQ(server.shown.size(), 1U); // nothing is repeated
    service.show(morning(QStringLiteral("two")), both);
    ASSERT_TRUE(waitForShown(2));
    EXPECT_EQ(server.shown.back().body, "two");
}

TEST_F(FreedesktopNotificationServiceTest, DoesNotAskAgainWhatAServiceHasRefused) {
    server.manner = RecordingServer::Manner::Refuses;
    startServer();
    service.show(morning(), both);
    ASSERT_TRUE(waitForShown(1));
    server.manner = RecordingServer::Manner::Answers;
    stopServer();
    startServer();
    settle();
    EXPECT_EQ(server.shown.size(), 1U);
}

TEST_F(FreedesktopNotificationServiceTest, WaitsForNobody) {
    server.manner = RecordingServer::Manner::KeepsSilent;
    startServer();
    QElapsedTimer time;
    time.start();
    service.whenReachable([] {});
    service.show(morning(), both);
    EXPECT_LT(time.elapsed(), 1000);
}

TEST(FreedesktopNotificationServiceWithoutABus, DoesNothingQuietly) {
    const QDBusConnection none =
        QDBusConnection::connectToBus(QStringLiteral("unix:path=/nonexistent/bus"), QStringLiteral("none"));
    FreedesktopNotificationService service(none);
    bool reachable = false;
    service.whenReachable([&] { reachable = true; });
    service.show(morning(), both);
    test::runQueued();
    EXPECT_FALSE(reachable);
}
