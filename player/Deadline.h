#pragma once

#include <chrono>

namespace tambrelle {

/// Ends the process quietly, with success, when `limit` has passed, whatever it is stuck in by then: a sound
/// server that hangs blocks the calling thread for good. A later call replaces an earlier one.
void endProcessAfter(std::chrono::milliseconds limit);

} // namespace tambrelle
