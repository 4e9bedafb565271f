#pragma once

#include <QObject>
#include <QPoint>
#include <QString>

#include <cstdint>

namespace tambrelle {

/// What the item in the status bar says: the whole line, and the day for bars that have room for a square
/// only.
struct StatusItemContent {
    QString line;
    std::int64_t day = 1; ///< Day of the Republican month, 1 to 30.

    bool operator==(const StatusItemContent&) const = default;
};

/// The application's item in the desktop's status area, whatever bar the desktop has.
class StatusItem : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Shows `content` from now on. Costs the bar nothing when it equals what is shown already.
    virtual void present(const StatusItemContent& content) = 0;

signals:
    /// The user clicked the item. `position` is the place of the click as far as the desktop tells it, in the
    /// toolkit's coordinates of the whole desktop, logical pixels; a bar that tells it over the bus counts in
    /// its own pixels, and they are taken as they come.
    void activated(QPoint position);
    /// The user chose the preferences in the item's own menu.
    void preferencesRequested();
    /// The user chose to quit in the item's own menu.
    void quitRequested();
};

} // namespace tambrelle
