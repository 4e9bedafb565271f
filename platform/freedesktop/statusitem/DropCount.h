#pragma once

#include <chrono>
#include <optional>

namespace tambrelle {

/// How often a bar's watcher has dropped the item of late. A drop now and then over weeks is no reason to
/// give the watcher up; one after the other is.
class DropCount final {
public:
    /// After a pause longer than this the count begins anew.
    static constexpr std::chrono::minutes forgivenAfter{1};

    /// Counts a drop that happened at `time`, on a clock that only goes forward, and gives how many there
    /// have been without such a pause between them, 1 or more.
    int add(std::chrono::milliseconds time) {
        if (last && time - *last > forgivenAfter)
            count = 0;
        last = time;
        return ++count;
    }

private:
    int count = 0;
    std::optional<std::chrono::milliseconds> last;
};

} // namespace tambrelle
