#pragma once

/// Distances between things, in logical pixels.
namespace tambrelle::Spacing {

inline constexpr int none = 0;
inline constexpr int tight = 2;
inline constexpr int close = 4;
inline constexpr int regular = 8;
/// The platform's usual space around a group.
inline constexpr int standard = 16;

} // namespace tambrelle::Spacing
