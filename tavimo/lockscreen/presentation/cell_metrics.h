// Distances inside a row of the list, in points.
#pragma once

namespace tavimo {

inline constexpr double kTextLeft = 47.0;
inline constexpr double kRightMargin = 10.0;
inline constexpr double kTitleDateGap = 10.0;
inline constexpr double kSpaceAboveFirstLine = 13.0;
inline constexpr double kSpaceBetweenLines = 0.0;
inline constexpr double kSpaceBelowLastLine = 13.0;

}  // namespace tavimo
