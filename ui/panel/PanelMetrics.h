#pragma once

/// The panel's own measures, in logical pixels.
namespace tambrelle::PanelMetrics {

/// At a text scale of 100 %; it grows with the text so that the same words fit.
inline constexpr int width = 320;

inline constexpr int navigationTop = 10;
inline constexpr int footerTopAndBottom = 8;

inline constexpr int dividerThickness = 1;
inline constexpr int betweenClocks = 20;
inline constexpr int clockDividerHeight = 40;

inline constexpr int pictureHeight = 260;
/// What is left of it on a screen too low for the whole panel.
inline constexpr int leastPictureHeight = 150;
inline constexpr int pictureCornerRadius = 8;
inline constexpr int pictureOutlineWidth = 1;

inline constexpr int smallPictureCornerRadius = 3;
inline constexpr int guillotineSide = 28;

inline constexpr int eventDescriptionLines = 2;

} // namespace tambrelle::PanelMetrics
