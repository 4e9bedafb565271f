#include "platform/freedesktop/Display.h"

#include "tests/support/ScopedEnvironment.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace tambrelle {
namespace {

/// A machine without a display, to begin with.
class DisplayTest : public ::testing::Test {
protected:
    [[nodiscard]] static bool hasDisplayWithOption(const char* option, const char* value) {
        const std::array<const char*, 3> arguments{"tambrelle", option, value};
        return prepareDisplay(static_cast<int>(arguments.size()), arguments.data());
    }
    [[nodiscard]] static bool hasDisplayWithoutArguments() {
        const std::array<const char*, 1> arguments{"tambrelle"};
        return prepareDisplay(static_cast<int>(arguments.size()), arguments.data());
    }

    test::ScopedEnvironment platform{"QT_QPA_PLATFORM", QByteArray()};
    test::ScopedEnvironment x11{"DISPLAY", QByteArray()};
    test::ScopedEnvironment wayland{"WAYLAND_DISPLAY", QByteArray()};
    test::ScopedEnvironment noSharedMemory{"QT_XCB_NO_MITSHM", QByteArray()};
    QTemporaryDir folder;
    test::ScopedEnvironment runtime{"XDG_RUNTIME_DIR", QFile::encodeName(folder.path())};
};

/// A socket that takes connections, as a compositor has one.
class ListeningSocket final {
public:
    explicit ListeningSocket(const QByteArray& path) : descriptor(::socket(AF_UNIX, SOCK_STREAM, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::copy(path.cbegin(), path.cend(), std::begin(address.sun_path));
        isListening = ::bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
                      ::listen(descriptor, 1) == 0;
    }
    ~ListeningSocket() { ::close(descriptor); }

    ListeningSocket(const ListeningSocket&) = delete;
    ListeningSocket& operator=(const ListeningSocket&) = delete;

    bool isListening = false;

private:
    int descriptor;
};

TEST_F(DisplayTest, NothingSetMeansNone) {
    EXPECT_FALSE(hasDisplayWithoutArguments());
}

TEST_F(DisplayTest, ServersThatDoNotAnswerAreNone) {
    const test::ScopedEnvironment noSuchServer("DISPLAY", ":987");
    const test::ScopedEnvironment noSuchSocket("WAYLAND_DISPLAY", "wayland-987");
    EXPECT_FALSE(hasDisplayWithoutArguments());
}

TEST_F(DisplayTest, NonsenseIsNone) {
    const test::ScopedEnvironment noise("DISPLAY", "no display");
    for (const QByteArray& name :
         {QByteArray("/"), QByteArray(4096, 'x'), QByteArray("/") + QByteArray(200, 'y')}) {
        const test::ScopedEnvironment socket("WAYLAND_DISPLAY", name);
        EXPECT_FALSE(hasDisplayWithoutArguments());
    }
}

TEST_F(DisplayTest, CompositorThatAnswersIsOne) {
    const ListeningSocket compositor(QFile::encodeName(folder.filePath(QStringLiteral("wayland-7"))));
    ASSERT_TRUE(compositor.isListening);
    const test::ScopedEnvironment relative("WAYLAND_DISPLAY", "wayland-7");
    EXPECT_TRUE(hasDisplayWithoutArguments());
    const test::ScopedEnvironment absolute("WAYLAND_DISPLAY",
                                           QFile::encodeName(folder.filePath(QStringLiteral("wayland-7"))));
    const test::ScopedEnvironment elsewhere("XDG_RUNTIME_DIR", "/nowhere");
    EXPECT_TRUE(hasDisplayWithoutArguments());
}

TEST_F(DisplayTest, WhereNoX11ServerAnswersGnomeIsServedByWayland) {
    const test::ScopedEnvironment gnome("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
    const ListeningSocket compositor(QFile::encodeName(folder.filePath(QStringLiteral("wayland-0"))));
    ASSERT_TRUE(compositor.isListening);
    const test::ScopedEnvironment name("WAYLAND_DISPLAY", "wayland-0");
    EXPECT_TRUE(hasDisplayWithoutArguments());
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_QPA_PLATFORM"));
}

TEST_F(DisplayTest, AnotherWayOfDrawingNeedsNone) {
    const test::ScopedEnvironment offscreen("QT_QPA_PLATFORM", "offscreen");
    EXPECT_TRUE(hasDisplayWithoutArguments());
}

TEST_F(DisplayTest, TheDisplaysOwnWaysNeedOne) {
    for (const char* name : {"xcb", "wayland", "wayland;xcb"}) {
        const test::ScopedEnvironment chosen("QT_QPA_PLATFORM", name);
        EXPECT_FALSE(hasDisplayWithoutArguments()) << name;
    }
}

TEST_F(DisplayTest, ArgumentsMayNameAnotherWay) {
    EXPECT_TRUE(hasDisplayWithOption("-platform", "offscreen"));
    EXPECT_TRUE(hasDisplayWithOption("--platform", "offscreen"));
    EXPECT_FALSE(hasDisplayWithOption("platform", "offscreen"));
    EXPECT_FALSE(hasDisplayWithOption("-platform", "xcb"));
    EXPECT_FALSE(hasDisplayWithOption("--platform", "wayland"));
}

TEST_F(DisplayTest, AnX11ServerIsSentItsPictures) {
    EXPECT_FALSE(hasDisplayWithoutArguments());
    EXPECT_TRUE(qEnvironmentVariableIsSet("QT_XCB_NO_MITSHM"));
}

} // namespace
} // namespace tambrelle
