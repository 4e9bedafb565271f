#include "platform/freedesktop/Display.h"

#include <QApplication>
#include <QBackingStore>
#include <QByteArray>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <iterator>
#include <span>
#include <string_view>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

namespace tambrelle {

namespace {

bool x11Answers() {
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return false;
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

bool waylandAnswers() {
    const QByteArray name = qgetenv("WAYLAND_DISPLAY");
    if (name.isEmpty())
        return false;
    const QByteArray path = name.startsWith('/') ? name : qgetenv("XDG_RUNTIME_DIR") + '/' + name;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= static_cast<qsizetype>(sizeof address.sun_path))
        return false;
    std::copy(path.cbegin(), path.cend(), std::begin(address.sun_path));
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool answers = ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(socket);
    return answers;
}

/// Whether the session's compositor places a window of ours where we ask only by way of its X11 server.
bool placesOnlyX11Windows() {
    return qgetenv("XDG_CURRENT_DESKTOP").contains("GNOME") &&
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

/// The toolkit's platform that the user asks for, or several of them; empty for none. The toolkit prefers the
/// option.
QByteArray namedPlatform(std::span<const char* const> arguments) {
    for (std::size_t at = 0; at + 1 < arguments.size(); ++at) {
        const std::string_view argument = arguments[at];
        if (argument == "-platform" || argument == "--platform")
            return arguments[at + 1];
    }
    return qgetenv("QT_QPA_PLATFORM");
}

/// The toolkit would wait at each drawing until the X11 server has read the last one. What is drawn
/// here is most often a few digits: to send them costs less, and wakes nobody a second time.
void shareNoMemory() {
    qputenv("QT_XCB_NO_MITSHM", "1");
}

void redrawAll() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (QBackingStore* store = window->backingStore())
            store->resize(store->size());
        window->update();
    }
}

void redrawAtEachScaleOf(const QScreen* screen) {
    QObject::connect(screen, &QScreen::logicalDotsPerInchChanged, qApp, redrawAll);
}

} // namespace

bool prepareDisplay(int argc, const char* const* argv) {
    const QByteArray named = namedPlatform({argv, static_cast<std::size_t>(argc)});
    const bool mayBeX11 = named.isEmpty() || named.contains("xcb");
    const bool mayBeWayland = named.isEmpty() || named.contains("wayland");
    if (!mayBeX11 && !mayBeWayland)
        return true;
    shareNoMemory();
    const bool x11 = mayBeX11 && x11Answers();
    if (x11 && placesOnlyX11Windows() && named.isEmpty())
        qputenv("QT_QPA_PLATFORM", "xcb");
    return x11 || (mayBeWayland && waylandAnswers());
}

PopoverKind popoverKind() {
    // An X11 window under a Wayland compositor sees no click outside the windows of X11.
    const bool x11Alone = QGuiApplication::platformName() != QLatin1String("wayland") &&
                          qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    return x11Alone ? PopoverKind::grabbing : PopoverKind::standing;
}

void redrawAtEachScale() {
    // Before 6.6 the toolkit gives a window the new number of pixels and goes on drawing the old number.
    for (const QScreen* screen : QGuiApplication::screens())
        redrawAtEachScaleOf(screen);
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, qGuiApp, redrawAtEachScaleOf);
}

} // namespace tambrelle
