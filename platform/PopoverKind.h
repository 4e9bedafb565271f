#pragma once

#include <cstdint>

namespace tambrelle {

/// What the desktop makes of a window that is to drop down from the item.
enum class PopoverKind : std::uint8_t {
    /// It holds the pointer while it is open, so that any click outside closes it.
    grabbing,
    /// No window may hold the pointer: it closes when another takes the focus.
    standing,
};

} // namespace tambrelle
