#pragma once

#include <QImage>

#include <cstdint>

namespace tambrelle {

/// The application's square icon: a calendar leaf with the Republican day on it, readable on light and dark
/// bars. `side` is in device pixels, `day` 1 to 30.
[[nodiscard]] QImage dayIcon(std::int64_t day, int side);

} // namespace tambrelle
