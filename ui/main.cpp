#include "platform/Identity.h"
#include "platform/freedesktop/ApplicationService.h"
#include "platform/freedesktop/Display.h"
#include "platform/freedesktop/EmojiFont.h"
#include "platform/freedesktop/FreedesktopPlatform.h"
#include "platform/freedesktop/SessionBus.h"
#include "platform/freedesktop/TerminationSignals.h"
#include "ui/TambrelleApp.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <optional>

int main(int argc, char** argv) {
    using namespace tambrelle;
    // The toolkit aborts where it finds no display; a user is owed a sentence and a status.
    if (!prepareDisplay(argc, argv)) {
        std::fputs("tambrelle: no display to show the calendar on\n", stderr);
        return EXIT_FAILURE;
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tambrelle"));
    QApplication::setApplicationDisplayName(QStringLiteral("Tambrelle"));
    QGuiApplication::setDesktopFileName(Identity::applicationId);
    QApplication::setQuitOnLastWindowClosed(false);
    redrawAtEachScale();

    const TerminationSignals termination;
    // Not by way of the windows' consent: who sends a signal does not wait for it.
    QObject::connect(&termination, &TerminationSignals::received, &application, [] { QApplication::exit(); });

    const SessionBus bus;
    ApplicationService service(bus);
    std::optional<FreedesktopPlatform> platform;
    std::optional<TambrelleApp> tambrelle;
    QObject::connect(&service, &ApplicationService::claimed, &application, [&] {
        platform.emplace(bus);
        const StatusItem& item = platform->ports().statusItem;
        // Before the application's own connections, and not at the start: to ask for fonts costs as much as
        // the rest of it, and the bar's line names its own.
        QObject::connect(&item, &StatusItem::activated, &application, preferEmojiFont);
        QObject::connect(&item, &StatusItem::preferencesRequested, &application, preferEmojiFont);
        QObject::connect(&service, &ApplicationService::activated, &application, preferEmojiFont);
        QObject::connect(&service, &ApplicationService::preferencesRequested, &application, preferEmojiFont);
        tambrelle.emplace(platform->ports());
        QObject::connect(&service, &ApplicationService::activated, &*tambrelle, &TambrelleApp::showPanel);
        QObject::connect(&service, &ApplicationService::preferencesRequested, &*tambrelle,
                         &TambrelleApp::openSettings);
    });
    QObject::connect(&service, &ApplicationService::deferred, &application, &QCoreApplication::quit);
    QObject::connect(&service, &ApplicationService::quitRequested, &application, &QCoreApplication::quit);
    service.claim();
    return QApplication::exec();
}
