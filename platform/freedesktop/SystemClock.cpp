#include "platform/freedesktop/SystemClock.h"

#include <chrono>

namespace tambrelle {

namespace {

constexpr std::chrono::seconds longestTrust{10};

} // namespace

SystemClock::SystemClock(const QString& zoneFolder) : zoneWatch(zoneFolder) {
    QObject::connect(&zoneWatch, &FolderWatch::changed, &zoneWatch, [this] { ++changes; });
}

Instant SystemClock::now() const {
    return std::chrono::floor<Instant::duration>(std::chrono::system_clock::now());
}

std::optional<std::uint64_t> SystemClock::zoneGeneration() const {
    // Either only grows, and so does the sum.
    const auto passed = std::chrono::steady_clock::now().time_since_epoch() / longestTrust;
    return changes + static_cast<std::uint64_t>(passed);
}

} // namespace tambrelle
