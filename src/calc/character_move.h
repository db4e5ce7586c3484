#pragma once

#include "common/pixel_matrix.h"

namespace tarnwick::calc {

// What can be done to a whole character: shifts by one pixel, in which what leaves on one side
// comes in on the other; left and right exchanged; top and bottom exchanged.
enum class CharacterMove { Left, Right, Up, Down, Mirror, UpsideDown };

// Answers the picture after the move.
[[nodiscard]] common::PixelMatrix moved(const common::PixelMatrix& picture, CharacterMove move);

}  // namespace tarnwick::calc
