#include "platform/freedesktop/statusitem/FreedesktopStatusItem.h"

#include "platform/freedesktop/SessionBus.h"
#include "platform/freedesktop/statusitem/DockedIconPresentation.h"
#include "platform/freedesktop/statusitem/DockedLinePresentation.h"
#include "platform/freedesktop/statusitem/FloatingLabelPresentation.h"
#include "platform/freedesktop/statusitem/NotifierPresentation.h"

#include <QPointer>

#include <chrono>

namespace tambrelle {

namespace {

/// How long a silent bus may keep the line from the screen.
constexpr std::chrono::milliseconds busPatience{1000};

/// How one program that takes items over the bus is best served.
struct Bar {
    NotifierAppearance appearance;
    bool showsLine = false;        ///< The line can be read in the bar itself.
    bool betterThanDocked = false; ///< Its X11 tray, if it has one, does not keep a docked window in the bar.
};

/// By the name of the program that owns the watcher, as the kernel has it.
Bar barOf(const QString& program) {
    if (program == QLatin1String("gnome-shell"))
        return {.appearance = {.style = {.label = true, .menu = false, .refuseClicks = true},
                               .wideLine = false,
                               .iconFromFile = false},
                .showsLine = true,
                .betterThanDocked = true};
    const bool indicator = program == QLatin1String("ayatana-indicat");
    if (indicator || program == QLatin1String("notification-ar"))
        return {.appearance = {.style = {.label = true, .menu = true, .refuseClicks = false},
                               .wideLine = false,
                               .iconFromFile = indicator},
                .showsLine = true,
                .betterThanDocked = false};
    if (program == QLatin1String("waybar"))
        return {.appearance = {.style = {.label = false, .menu = true, .refuseClicks = false},
                               .wideLine = true,
                               .iconFromFile = false},
                .showsLine = true,
                .betterThanDocked = false};
    return {};
}

} // namespace

FreedesktopStatusItem::FreedesktopStatusItem(const SessionBus& bus, UserDefaults& defaults, QObject* parent)
    : StatusItem(parent), bus(bus), placeOfLabel(defaults) {
    connect(&tray, &TrayManager::changed, this, [this] {
        lineRefused = false;
        iconRefused = false;
        choose();
    });
    watch();
    connect(&bus, &SessionBus::changed, this, &FreedesktopStatusItem::watch);
    patience.setSingleShot(true);
    connect(&patience, &QTimer::timeout, this, [this] {
        watcherKnown = true;
        choose();
    });
    patience.start(busPatience);
}

FreedesktopStatusItem::~FreedesktopStatusItem() = default;

void FreedesktopStatusItem::watch() {
    watcher = std::make_unique<NotifierWatcher>(bus.connection());
    connect(watcher.get(), &NotifierWatcher::changed, this, [this] {
        patience.stop();
        // Still none: what is shown stays, and a label where its user has put it.
        if (watcherKnown && !watcher->isPresent() && !chosenForWatcher)
            return;
        watcherKnown = true;
        watcherRefused = false;
        choose();
    });
}

void FreedesktopStatusItem::present(const StatusItemContent& next) {
    if (next == content)
        return;
    const bool first = !content;
    content = next;
    if (first) {
        choose();
        return;
    }
    for (const auto& presentation : presentations)
        presentation->present(next);
}

void FreedesktopStatusItem::choose() {
    presentations.clear();
    if (!content || !watcherKnown)
        return;
    chosenForWatcher = watcher->isPresent();
    const Bar bar = barOf(watcher->program());
    const bool notified = watcher->isPresent() && !watcherRefused;
    const bool docked = tray.isPresent() && !lineRefused && !(notified && bar.betterThanDocked);
    if (docked) {
        add(std::make_unique<DockedLinePresentation>(tray), [this] { lineRefused = true; });
        return;
    }
    std::unique_ptr<FloatingLabelPresentation> label;
    if (!notified || !bar.showsLine)
        label = std::make_unique<FloatingLabelPresentation>(placeOfLabel);
    if (notified) {
        add(std::make_unique<NotifierPresentation>(bus.connection(), bar.appearance),
            [this] { watcherRefused = true; });
    } else if (tray.isPresent() && !iconRefused) {
        auto icon = std::make_unique<DockedIconPresentation>(tray);
        connect(icon.get(), &DockedIconPresentation::settledIn, label.get(),
                &FloatingLabelPresentation::keepOff);
        add(std::move(icon), [this] { iconRefused = true; });
    }
    if (label)
        add(std::move(label), [] {});
}

void FreedesktopStatusItem::add(std::unique_ptr<Presentation> presentation, std::function<void()> onRefusal) {
    Presentation* added = presentation.get();
    presentations.push_back(std::move(presentation));
    connect(added, &Presentation::activated, this, &StatusItem::activated);
    connect(added, &Presentation::preferencesRequested, this, &StatusItem::preferencesRequested);
    connect(added, &Presentation::quitRequested, this, &StatusItem::quitRequested);
    // Queued: the new choice destroys the one that is just saying so.
    const auto chooseAnother = [this, refusing = QPointer(added), onRefusal = std::move(onRefusal)] {
        // Meanwhile the bar has changed, and the refusal says nothing about what has been chosen since.
        if (!refusing)
            return;
        onRefusal();
        choose();
    };
    connect(added, &Presentation::refused, this, chooseAnother, Qt::QueuedConnection);
    added->present(*content);
}

} // namespace tambrelle
