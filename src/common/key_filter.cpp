#include "common/key_filter.h"

namespace tarnwick::common {
namespace {

constexpr char32_t backspace = 8;
constexpr char32_t enter = 13;

}  // namespace

KeyVerdict wholeNumberKey(char32_t character, bool pointTyped) {
  const bool digit = character >= U'0' && character <= U'9';
  return {.enter = character == enter,
          .accepted = digit || character == backspace,
          .pointTyped = pointTyped};
}

KeyVerdict decimalKey(char32_t character, bool pointTyped) {
  if (character == U'.' && !pointTyped)
    return {.enter = false, .accepted = true, .pointTyped = true};
  return wholeNumberKey(character, pointTyped);
}

}  // namespace tarnwick::common
