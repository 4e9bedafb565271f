#pragma once

#include <QIcon>

namespace tambrelle {

/// The application's icon for the frames of its windows, drawn at the sizes that window managers ask for.
/// Costs some milliseconds.
[[nodiscard]] QIcon applicationIcon();

} // namespace tambrelle
