#pragma once

#include "platform/Clock.h"
#include "platform/freedesktop/FolderWatch.h"

#include <QString>

namespace tambrelle {

/// The system's wall clock. Needs the toolkit's application object.
class SystemClock final : public Clock {
public:
    /// `zoneFolder` is where the system keeps its link to the zone.
    explicit SystemClock(const QString& zoneFolder = QStringLiteral("/etc"));

    [[nodiscard]] Instant now() const override;

    /// Another as soon as something changes in the zone's folder. What changes elsewhere is never told: for
    /// its sake the answer also changes with time.
    [[nodiscard]] std::optional<std::uint64_t> zoneGeneration() const override;

private:
    FolderWatch zoneWatch;
    std::uint64_t changes = 0;
};

} // namespace tambrelle
