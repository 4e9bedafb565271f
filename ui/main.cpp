#include "platform/freedesktop/Display.h"
#include "platform/freedesktop/EmojiFont.h"
#include "platform/freedesktop/FreedesktopPlatform.h"
#include "ui/TambrelleApp.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

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
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tambrelle.Tambrelle"));
    QApplication::setQuitOnLastWindowClosed(false);

    preferEmojiFont();
    FreedesktopPlatform platform;
    const TambrelleApp tambrelle(platform.ports());
    return QApplication::exec();
}
