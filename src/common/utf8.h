#pragma once

namespace tarnwick::common {

// Answers whether a byte of a UTF-8 text goes on with a character that began before it: whether it
// is binary 10xxxxxx.
[[nodiscard]] constexpr bool continuesCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}  // namespace tarnwick::common
