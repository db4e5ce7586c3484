#include "common/read_number.h"

#include "common/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <system_error>

namespace tarnwick::common {
namespace {

constexpr double largest = std::numeric_limits<double>::max();

// Takes the text's first character off if it is one of the set.
bool takeOne(std::string_view& text, std::string_view set) {
  if (text.empty() || set.find(text.front()) == set.npos) return false;
  text.remove_prefix(1);
  return true;
}

// Takes a sign off and answers whether it is "-".
bool takeMinus(std::string_view& text) {
  return !takeOne(text, "+") && takeOne(text, "-");
}

std::string_view takeDigits(std::string_view& text) {
  const std::string_view digits = text.substr(0, text.find_first_not_of("0123456789"));
  text.remove_prefix(digits.size());
  return digits;
}

// Reads a hexadecimal or octal whole number behind its "&". The first 61 to 64 bits are kept as
// they are, any one further on only in the lowest of them: enough to round as the whole text does.
double readRadix(std::string_view text) {
  const bool hexadecimal = takeOne(text, "Hh");
  if (!hexadecimal && !takeOne(text, "Oo")) return 0;
  const int bitsPerDigit = hexadecimal ? 4 : 3;
  std::uint64_t bits = 0;
  int power = 0;  // of two, by which the bits are multiplied
  for (const char& c : text) {
    unsigned digit = 0;
    if (std::from_chars(&c, &c + 1, digit, 1 << bitsPerDigit).ec != std::errc()) break;
    if (bits >> 60 == 0) {
      bits = bits << bitsPerDigit | digit;
    } else {
      if (digit != 0) bits |= 1;
      power = std::min(power + bitsPerDigit, 2000);  // far beyond the range of a double
    }
  }
  return std::min(std::ldexp(static_cast<double>(bits), power), largest);
}

// Reads an exponent's sign and digits; what is missing counts as 0. Cut beyond any text's reach, so
// that no sum with a count of digits can overflow.
std::int64_t readExponent(std::string_view text) {
  constexpr std::int64_t reach = 1'000'000'000'000'000;
  const bool negative = takeMinus(text);
  std::int64_t exponent = 0;
  for (const char digit : takeDigits(text))
    exponent = std::min(exponent * 10 + (digit - '0'), reach);
  return negative ? -exponent : exponent;
}

// Reads a decimal number without its sign, as .DIGITSePOINT with a first digit that is not 0: the
// exponent of that form tells by itself on which side a number leaves the range of a double.
double readDecimal(std::string_view text) {
  std::string digits(takeDigits(text));
  auto point = static_cast<std::int64_t>(digits.size());
  if (takeOne(text, ".")) digits += takeDigits(text);
  const std::size_t zeros = digits.find_first_not_of('0');
  if (zeros == digits.npos) return 0;
  point -= static_cast<std::int64_t>(zeros);
  if (takeOne(text, "EeDd")) point += readExponent(text);

  constexpr std::int64_t beyond = 400;
  std::string form = ".";
  form.append(digits, zeros).append("e").append(wholeText(std::clamp(point, -beyond, beyond)));
  double value = 0;
  const auto result = std::from_chars(form.data(), form.data() + form.size(), value);
  if (result.ec != std::errc::result_out_of_range) return value;
  return point > 0 ? largest : 0;
}

}  // namespace

double readNumber(std::string_view text) {
  std::string solid(text);
  std::erase_if(solid, [](char c) { return c == ' ' || c == '\t' || c == '\n'; });
  std::string_view rest = solid;
  if (takeOne(rest, "&")) return readRadix(rest);
  const bool negative = takeMinus(rest);
  const double magnitude = readDecimal(rest);
  return negative ? 0 - magnitude : magnitude;  // no minus zero
}

}  // namespace tarnwick::common
