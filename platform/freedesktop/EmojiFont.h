#pragma once

#include <QString>

namespace tambrelle {

/// The desktop's emoji font, in colour where one is installed.
[[nodiscard]] QString emojiFamily();

/// Makes the desktop's fonts fall back on its emoji font before any other. A symbol that the text's own font
/// has too still comes from there; who wants it in colour asks for `emojiFamily`. Needs the toolkit's
/// application object, and comes before the first text is drawn.
void preferEmojiFont();

} // namespace tambrelle
