#pragma once

namespace tarnwick::ui {

// Answers a length of the windows' design, given in twips (1/1440 inch), in logical pixels: 15
// twips make one, a part of a pixel is rounded.
[[nodiscard]] constexpr int fromTwips(int twips) {
  constexpr int twipsPerPixel = 15;
  return (twips + (twips < 0 ? -twipsPerPixel : twipsPerPixel) / 2) / twipsPerPixel;
}

}  // namespace tarnwick::ui
