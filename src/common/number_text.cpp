#include "common/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>

namespace tarnwick::common {
namespace {

constexpr int significantDigits = 15;

bool isPosition(char c) {
  return c == '0' || c == '#';
}

std::size_t positions(std::string_view half) {
  return static_cast<std::size_t>(std::ranges::count_if(half, isPosition));
}

// How many of the positions always show a digit.
std::size_t zeros(std::string_view half) {
  return static_cast<std::size_t>(std::ranges::count(half, '0'));
}

// The value without its sign, taken to 15 significant digits and rounded to `places` digits after
// the decimal point, halves away from zero: its digits down to the last of these places, without
// the point and without leading zeros, so none for zero.
std::string roundedDigits(double value, int places) {
  std::array<char, 32> text;  // d.dddddddddddddde[+-]ddd
  const auto end = std::to_chars(text.data(), text.data() + text.size(), std::fabs(value),
                                 std::chars_format::scientific, significantDigits - 1);
  text[1] = text[0];  // the digits stand together
  const char* const mark = text.data() + significantDigits + 1;
  std::int64_t digits = 0;
  std::from_chars(text.data() + 1, mark, digits);
  int exponent = 0;
  std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, end.ptr, exponent);

  int surplus = significantDigits - 1 - exponent - places;
  for (; surplus > 1; --surplus) digits /= 10;
  if (surplus == 1) digits = (digits + 5) / 10;
  if (digits == 0) return {};
  return wholeText(digits).append(static_cast<std::size_t>(std::max(-surplus, 0)), '0');
}

// Appends the half of a pattern before its point, each position taking its digit, the first one
// also those to its left.
void writeInteger(std::string& text, std::string_view half, std::string_view digits) {
  std::size_t positionsLeft = positions(half);
  std::size_t next = 0;
  for (const char c : half) {
    if (!isPosition(c)) {
      text += c;
      continue;
    }
    --positionsLeft;
    for (; next + positionsLeft < digits.size(); ++next) text += digits[next];
  }
  text += digits.substr(next);
}

// Appends the half from the point on, whose first positions take a digit each.
void writeFraction(std::string& text, std::string_view half, std::string_view digits) {
  std::size_t next = 0;
  for (const char c : half) {
    if (!isPosition(c))
      text += c;
    else if (next < digits.size())
      text += digits[next++];
  }
}

}  // namespace

std::string format(double value, std::string_view pattern) {
  return formatWithUnit(value, pattern, {});
}

std::string formatWithUnit(double value, std::string_view pattern, std::string_view unit) {
  if (pattern.find('%') != pattern.npos) value *= 100;
  if (!std::isfinite(value)) return {};

  const std::string_view integer = pattern.substr(0, pattern.find('.'));
  const std::string_view fraction = pattern.substr(integer.size());
  const std::size_t places = positions(fraction);
  std::string digits = roundedDigits(value, static_cast<int>(places));
  std::string text = value < 0 && !digits.empty() ? "-" : "";
  const std::size_t least = zeros(integer) + places;
  if (digits.size() < least) digits.insert(0, least - digits.size(), '0');
  const std::size_t point = digits.size() - places;
  while (digits.size() > point + zeros(fraction) && digits.back() == '0') digits.pop_back();

  writeInteger(text, integer, std::string_view(digits).substr(0, point));
  writeFraction(text, fraction, std::string_view(digits).substr(point));
  return text.append(unit);
}

std::string numberText(double value) {
  if (!std::isfinite(value)) return {};
  if (value == 0) return "0";
  std::array<char, 32> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                 std::chars_format::general, significantDigits);
  std::string result(text.data(), end.ptr);
  if (const auto mark = result.find('e'); mark != std::string::npos) result[mark] = 'E';
  return result;
}

std::string wholeText(std::int64_t value) {
  std::array<char, std::numeric_limits<std::int64_t>::digits10 + 3> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value);
  return {text.data(), end.ptr};
}

}  // namespace tarnwick::common
