#pragma once

#include <cstdint>
#include <string>

namespace wxbrg {

/// The window in which the target shows every process: its width and height in window units, the origin in
/// its centre, y upward.
inline constexpr std::int32_t windowSize = 21000;
/// How near to the window's edge an object is drawn back that lies outside.
inline constexpr std::int32_t windowEdge = 50;
/// The margin around the activities, as a part of their extent.
inline constexpr double windowMargin = 0.1;

/// A position as the output words it: "XPOS -120 YPOS 3400".
std::string PositionText(std::int32_t x, std::int32_t y);

}  // namespace wxbrg
