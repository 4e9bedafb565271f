#pragma once

#include "platform/ContrastPreference.h"
#include "ui/AppTheme.h"

#include <QPalette>

#include <cstdint>

namespace tambrelle {

/// What a colour of the panel means. The theme says how it looks.
enum class Ink : std::uint8_t {
    background,
    primary,
    secondary,
    tertiary,
    quaternary,
    divider,
    red,
    green,
    blue,
    focus,
    pictureField,
    pictureOutline,
};

/// The colours of a theme, the same in every colour group, so that neither the desktop's appearance nor an
/// inactive window changes them; only the user's wish for more contrast makes the texts stand out more.
/// Widgets inherit them and look them up with `color`.
[[nodiscard]] QPalette panelPalette(AppTheme theme, Contrast contrast = Contrast::normal);

/// The colour of `ink` in a palette made by `panelPalette`.
[[nodiscard]] QColor color(const QPalette& palette, Ink ink);

} // namespace tambrelle
