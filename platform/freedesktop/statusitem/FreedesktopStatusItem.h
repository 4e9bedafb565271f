#pragma once

#include "platform/StatusItem.h"
#include "platform/freedesktop/statusitem/NotifierWatcher.h"
#include "platform/freedesktop/statusitem/RememberedPlace.h"
#include "platform/freedesktop/statusitem/TrayManager.h"

#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tambrelle {

class Presentation;
class SessionBus;

/// Looks at the desktop, chooses how the line gets into its bar, and looks again whenever the bar changes.
class FreedesktopStatusItem final : public StatusItem {
    Q_OBJECT

public:
    /// `bus` and `defaults` outlive the item.
    FreedesktopStatusItem(const SessionBus& bus, UserDefaults& defaults, QObject* parent = nullptr);
    ~FreedesktopStatusItem() override;

    void present(const StatusItemContent& content) override;

private:
    void watch();
    void choose();
    void add(std::unique_ptr<Presentation> presentation, std::function<void()> onRefusal);

    const SessionBus& bus;
    RememberedPlace placeOfLabel;
    TrayManager tray;
    std::unique_ptr<NotifierWatcher> watcher; ///< On the present bus.
    QTimer patience;
    bool watcherKnown = false;     ///< Whether the bus has said who takes items, if anybody.
    bool chosenForWatcher = false; ///< Whether there was a watcher when the line was last given its place.
    bool lineRefused = false;      ///< Whether the present tray has given the line too little room.
    bool iconRefused = false;      ///< Whether the present tray has not taken the square icon either.
    bool watcherRefused = false;   ///< Whether the present watcher has answered by an error.
    std::optional<StatusItemContent> content;
    std::vector<std::unique_ptr<Presentation>> presentations;
};

} // namespace tambrelle
