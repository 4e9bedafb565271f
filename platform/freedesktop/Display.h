#pragma once

#include "platform/PopoverKind.h"

namespace tambrelle {

/// Whether a display server answers to which the toolkit, started with these arguments and this environment,
/// could connect; true as well where another way of drawing was asked for by name, such as "offscreen". Where
/// a Wayland desktop lets only X11 windows choose their place, as GNOME does, the toolkit is told to be one;
/// a choice of the user's stands. An X11 server is to be sent its pictures, not to share
/// memory. Comes before the toolkit's application object.
[[nodiscard]] bool prepareDisplay(int argc, const char* const* argv);

/// What this display server allows of popovers. Comes after the toolkit's application object.
[[nodiscard]] PopoverKind popoverKind();

/// Has every window drawn anew when the scale of a screen changes, now and later. Comes after the toolkit's
/// application object.
void redrawAtEachScale();

} // namespace tambrelle
