#pragma once

#include "platform/Clock.h"
#include "platform/freedesktop/FolderWatch.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <ctime>
#include <sys/types.h>

namespace tambrelle {

/// The system's wall clock. Needs the toolkit's application object.
class SystemClock final : public Clock {
public:
    /// `zoneFolder` is where the system keeps its link to the zone.
    explicit SystemClock(const QString& zoneFolder = QStringLiteral("/etc"),
                         std::chrono::seconds betweenLooks = std::chrono::seconds{30});

    [[nodiscard]] Instant now() const override;

    /// Another as soon as something changes in the zone's folder. The link's target lies elsewhere, and is
    /// looked at twice a minute, or as the constructor was told.
    [[nodiscard]] std::optional<std::uint64_t> zoneGeneration() const override;

private:
    /// What tells one state of the zone's file from the next.
    struct ZoneFile {
        dev_t device = 0;
        ino_t number = 0;
        std::time_t changedSeconds = 0;
        long changedNanoseconds = 0;

        bool operator==(const ZoneFile&) const = default;
    };

    [[nodiscard]] ZoneFile zoneFile() const;

    QByteArray zonePath;
    std::chrono::seconds betweenLooks;
    FolderWatch zoneWatch;
    // A look at the zone is taken at most as often as the time is asked, and with its answer: a clock of its
    // own would cost each tick more than the look does.
    mutable Instant lastNow{};
    mutable Instant lastLook{};
    mutable ZoneFile lastSeen;
    mutable std::uint64_t generation = 0;
};

} // namespace tambrelle
