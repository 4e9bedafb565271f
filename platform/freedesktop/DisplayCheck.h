#pragma once

namespace tambrelle {

/// Whether a display server answers to which the toolkit, started with these arguments and this environment,
/// could connect. True as well where another way of drawing was asked for by name, such as "offscreen".
[[nodiscard]] bool hasDisplay(int argc, const char* const* argv);

} // namespace tambrelle
