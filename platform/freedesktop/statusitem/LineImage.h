#pragma once

#include <QImage>
#include <QString>

namespace tambrelle {

/// The line as a picture for a bar whose colour is unknown: light text with a dark halo, on nothing. `scale`
/// is device pixels for each logical one.
[[nodiscard]] QImage lineImage(const QString& text, int scale);

} // namespace tambrelle
