#pragma once

#include <bitset>
#include <cstddef>

namespace tarnwick::common {

inline constexpr std::size_t matrixRows = 8;
inline constexpr std::size_t matrixColumns = 5;
inline constexpr std::size_t matrixPixels = matrixRows * matrixColumns;

// A character of a dot-matrix display: pixel row * 5 + bit, set where it is on. Row 0 is the top
// one, bit 0 the rightmost column.
using PixelMatrix = std::bitset<matrixPixels>;

}  // namespace tarnwick::common
