// tambrelle-screenshots FOLDER [SCALE]: pictures of the panel and the settings, drawn into memory.

#include "platform/freedesktop/EmojiFont.h"
#include "tests/ui/StateOnFakes.h"
#include "ui/panel/MenuBarView.h"
#include "ui/settings/SettingsView.h"
#include "ui/settings/ToggleRow.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>

#include <cstdio>
#include <cstdlib>

namespace {

using namespace tambrelle;
using test::StateOnFakes;

constexpr CivilComponents usualDay{2025, 11, 15, 12, 0, 0};          // 23 Brumaire
constexpr CivilComponents complementaryDay{2025, 9, 19, 23, 59, 59}; // La Fête de la Vertu
constexpr CivilComponents eventDay{2025, 7, 29, 7, 5, 0};            // 9 Thermidor
constexpr CivilComponents longDay{2026, 10, 16, 9, 59, 0};

class Album final {
public:
    explicit Album(QString folder) : folder(std::move(folder)) { QDir().mkpath(this->folder); }

    void add(const QString& name, QWidget& widget) {
        const QString file = QStringLiteral("%1/%2.png").arg(folder, name);
        if (!widget.grab().save(file))
            std::fprintf(stderr, "cannot write %s\n", qUtf8Printable(file));
    }

private:
    QString folder;
};

void addShippedPictures(StateOnFakes& state) {
    const QString built = QCoreApplication::applicationDirPath() + QStringLiteral("/share/tambrelle");
    const QString folder = qEnvironmentVariable("TAMBRELLE_RESOURCES", built);
    for (const QString& file : QDir(folder + QStringLiteral("/plates")).entryList({QStringLiteral("*.png")}))
        state.platform.resources.files.insert(QStringLiteral("plates/") + file,
                                              folder + QStringLiteral("/plates/") + file);
}

void addDay(Album& album, const QString& name, const CivilComponents& day) {
    StateOnFakes state(day);
    addShippedPictures(state);
    MenuBarView view(state.panelServices());
    view.refresh();
    album.add(name + QStringLiteral("-light"), view);
    state.manager.setTheme(AppTheme::sepiaNight);
    view.refresh();
    album.add(name + QStringLiteral("-night"), view);
}

void addThreeEvents(Album& album) {
    StateOnFakes state(eventDay);
    addShippedPictures(state);
    MenuBarView view(state.panelServices());
    PanelSnapshot snapshot =
        panelSnapshot(state.manager, state.sound, {state.platform.clock.now(), QLocale()});
    snapshot.onToday = false;
    snapshot.footer.soundEnabled = true;
    auto& events = snapshot.onThisDay.events;
    events.push_back(events.front());
    events.back().year.clear();
    events.push_back(
        {.emoji = QStringLiteral("👑"),
         .title = QStringLiteral("A title that is longer than the place beside its year"),
         .year = QStringLiteral("(An XVIII)"),
         .description = QStringLiteral("A description that runs over the end of its second line, "
                                       "because it tells the day in far more words than the row "
                                       "has room for, and then some more")});
    view.present(snapshot);
    album.add(QStringLiteral("three-events"), view);
}

QPalette darkDesktop() {
    QPalette palette(QColor(48, 48, 51));
    palette.setColor(QPalette::Highlight, QColor(74, 144, 217));
    return palette;
}

void addSettings(Album& album, const QString& name) {
    StateOnFakes state(usualDay);
    SettingsView view(
        {state.manager, state.notifications, state.sound, state.platform.loginItem, state.platform.clock});
    view.adjustSize();
    album.add(name, view);
}

/// With the keyboard's focus on the first control.
void addFocusedSettings(Album& album, const QString& name) {
    StateOnFakes state(usualDay);
    SettingsView view(
        {state.manager, state.notifications, state.sound, state.platform.loginItem, state.platform.clock});
    view.show();
    view.activateWindow();
    view.findChild<ToggleRow*>()->setFocus();
    QApplication::processEvents();
    album.add(name, view);
}

void addSettingsWithoutTime(Album& album) {
    StateOnFakes state(usualDay);
    state.notifications.setEnabled(false);
    state.platform.loginItem.enabled = true;
    SettingsView view(
        {state.manager, state.notifications, state.sound, state.platform.loginItem, state.platform.clock});
    view.adjustSize();
    album.add(QStringLiteral("settings-without-time"), view);
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("usage: tambrelle-screenshots FOLDER [SCALE]\n", stderr);
        return EXIT_FAILURE;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc > 2)
        qputenv("QT_SCALE_FACTOR", argv[2]);
    const QApplication application(argc, argv);
    preferEmojiFont();

    Album album(QString::fromLocal8Bit(argv[1]));
    addDay(album, QStringLiteral("today"), usualDay);
    addDay(album, QStringLiteral("complementary"), complementaryDay);
    addDay(album, QStringLiteral("long"), longDay);
    addThreeEvents(album);
    addSettings(album, QStringLiteral("settings"));
    addSettingsWithoutTime(album);
    addFocusedSettings(album, QStringLiteral("settings-focus"));
    QApplication::setPalette(darkDesktop());
    addSettings(album, QStringLiteral("settings-dark-desktop"));
    addFocusedSettings(album, QStringLiteral("settings-focus-dark-desktop"));
    return EXIT_SUCCESS;
}
