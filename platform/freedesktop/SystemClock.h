#pragma once

#include "platform/Clock.h"

#include <QFileSystemWatcher>

namespace tambrelle {

/// The system's wall clock. Needs the toolkit's application object.
class SystemClock final : public Clock {
public:
    SystemClock();

    [[nodiscard]] Instant now() const override;

    /// Another one as soon as something comes or goes in the folder of the zone's link. What happens
    /// elsewhere, or within a file, is never told: for its sake the answer also changes with time.
    [[nodiscard]] std::optional<std::uint64_t> zone() const override;

private:
    QFileSystemWatcher watcher;
    std::uint64_t changes = 0;
};

} // namespace tambrelle
