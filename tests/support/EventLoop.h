#pragma once

#include <chrono>
#include <functional>

namespace tambrelle::test {

/// Runs the event loop until `condition` holds; false when it does not within `limit`.
[[nodiscard]] bool waitUntil(const std::function<bool()>& condition,
                             std::chrono::milliseconds limit = std::chrono::seconds(10));

/// Delivers what is queued now, and what that queues in its turn, without waiting for anything.
void runQueued();

} // namespace tambrelle::test
