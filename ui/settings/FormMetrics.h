#pragma once

#include <QSize>

/// The measures of a grouped form, in logical pixels.
namespace tambrelle::FormMetrics {

/// Of the form, without the space around it; grows with the text.
inline constexpr int width = 360;
inline constexpr int cornerRadius = 8;
inline constexpr int rowPaddingX = 12;
inline constexpr int rowPaddingY = 6;
inline constexpr int rowHeight = 42; ///< at least
inline constexpr int betweenSections = 14;
inline constexpr int titleInset = 12;
inline constexpr int hairline = 1;
/// How strongly frames and the lines between rows stand out from their ground.
inline constexpr double hairlineOpacity = 0.14;
/// How much of the text's colour lightens the boxes of a desktop whose window ground is its lightest.
inline constexpr double boxTint = 0.06;
inline constexpr QSize switchSize{36, 20};
inline constexpr int switchKnobInset = 2;
/// How strongly the text's colour tints a switch that is off.
inline constexpr double switchOffOpacity = 0.25;
/// Between a switch and the line around it that shows the focus.
inline constexpr int focusDistance = 2;
inline constexpr int focusLineWidth = 1;
/// What a control that draws its own focus keeps free around itself.
inline constexpr int focusOutset = focusDistance + focusLineWidth;

} // namespace tambrelle::FormMetrics
