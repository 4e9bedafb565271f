#pragma once

#include <memory>

namespace tambrelle {

class RepeatingTimer;

/// The timer that costs least on the main thread's event loop. Needs the toolkit's application object.
[[nodiscard]] std::unique_ptr<RepeatingTimer> makeTickTimer();

} // namespace tambrelle
