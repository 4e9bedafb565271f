#pragma once

#include "player/Sound.h"

#include <functional>

namespace tambrelle {

/// Plays a sound once to the default output of the sound server, and returns when it has been heard, when
/// `stop` says so, or at once when there is no server. `volume` is linear, 0 to 1 of the sound's own level.
/// Blocks for as long as the server does.
void play(const Sound& sound, double volume, const std::function<bool()>& stop);

} // namespace tambrelle
