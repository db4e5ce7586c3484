#pragma once

#include <string_view>

namespace tarnwick::common {

// Answers the number that an entry field's text stands for: its leading numeric part.
// Blanks (space, tab, line feed) are skipped wherever they stand; the decimal point is ".",
// an exponent follows "E" or "D" in either case, "&H" and "&O" introduce a positive hexadecimal
// or octal whole number. Text without a digit reads as 0, a magnitude beyond the range of a
// double as the largest finite one, one too small for it as 0. Every text gives a finite number;
// regional settings play no part.
[[nodiscard]] double readNumber(std::string_view text);

}  // namespace tarnwick::common
