#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick::common {

// Answers the value written with a pattern: "0" is a digit position always shown, "#" one shown
// only when its digit is significant, "." the decimal point, "%" stands for itself and multiplies
// the value by 100; other characters are copied. The value is taken to 15 significant decimal
// digits, the same as numberText writes, and these are rounded to the pattern's fraction positions,
// halves away from zero. A value that is not finite (also after the multiplication) gives empty
// text.
[[nodiscard]] std::string format(double value, std::string_view pattern);

// Answers the value in at most 15 significant digits without needless zeros, in exponent form
// ("1E-05", "1E+15") below 0.0001 and from 1E+15 on. Minus zero gives "0", a value that is not
// finite empty text.
[[nodiscard]] std::string numberText(double value);

// Answers the decimal digits of a whole number, with "-" in front of a negative one.
[[nodiscard]] std::string wholeText(std::int64_t value);

// Answers format(value, pattern) followed by the unit, also when that is empty since the pattern
// shows no zero; a value that is not finite gives empty text.
[[nodiscard]] std::string formatWithUnit(double value, std::string_view pattern,
                                         std::string_view unit);

}  // namespace tarnwick::common
