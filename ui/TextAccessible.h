#pragma once

namespace tambrelle {

/// Lets assistive technology read every TextLabel as a label with its whole text. Does nothing after the
/// first call.
void installTextAccessibility();

} // namespace tambrelle
