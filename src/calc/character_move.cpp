#include "calc/character_move.h"

namespace tarnwick::calc {
namespace {

using common::matrixColumns;
using common::matrixRows;

// The pixel to which the one in a row under a bit moves; bit 0 is the rightmost.
std::size_t target(std::size_t row, std::size_t bit, CharacterMove move) {
  switch (move) {
    case CharacterMove::Left:
      bit = (bit + 1) % matrixColumns;
      break;
    case CharacterMove::Right:
      bit = (bit + matrixColumns - 1) % matrixColumns;
      break;
    case CharacterMove::Up:
      row = (row + matrixRows - 1) % matrixRows;
      break;
    case CharacterMove::Down:
      row = (row + 1) % matrixRows;
      break;
    case CharacterMove::Mirror:
      bit = matrixColumns - 1 - bit;
      break;
    case CharacterMove::UpsideDown:
      row = matrixRows - 1 - row;
      break;
  }
  return row * matrixColumns + bit;
}

}  // namespace

common::PixelMatrix moved(const common::PixelMatrix& picture, CharacterMove move) {
  common::PixelMatrix after;
  for (std::size_t p = 0; p < common::matrixPixels; ++p)
    after.set(target(p / matrixColumns, p % matrixColumns, move), picture.test(p));
  return after;
}

}  // namespace tarnwick::calc
