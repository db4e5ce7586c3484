// Writing any number: with every pattern in use and with made-up ones, beside decimal arithmetic on
// the digits that snprintf gives; as plain text beside snprintf; rounding to whole numbers.

#include "common/number_text.h"
#include "common/read_number.h"
#include "common/rounding.h"
#include "fuzz/input.h"

#include <algorithm>
#include <array>

namespace {

using namespace tarnwick;
using fuzz::require;

constexpr std::array<std::string_view, 14> patterns{
    "#####",        "####0.0##",    "##0.0##",   "###.0#",   "0.000",
    "##0.000",      "0.0#%",        "###0.0###", "####.0##", "###0.0## Hz",
    "###0.0## KHz", "###0.0## MHz", "0.0## KHz", "0.0## Hz"};

std::string anyPattern(FuzzedDataProvider& input) {
  const auto index = input.ConsumeIntegralInRange<std::size_t>(0, patterns.size());
  if (index < patterns.size()) return std::string(patterns[index]);
  std::string pattern;
  bool point = false;
  for (const char byte : input.ConsumeRandomLengthString(30)) {
    const char c = "00##.% k"[static_cast<unsigned char>(byte) % 8];
    if (c != '.' || !point) pattern += c;
    point = point || c == '.';
  }
  return pattern;
}

std::string printed(const char* conversion, double value) {
  std::array<char, 64> text;
  std::snprintf(text.data(), text.size(), conversion, value);
  return text.data();
}

// The digits of the value, rounded to 15 significant ones and these to `places` after the point,
// halves away from zero: the whole number that is left with the point taken out, "" for zero.
std::string roundedDigits(double value, int places) {
  const std::string text = printed("%.14e", std::fabs(value));  // d.dddddddddddddde[+-]dd
  const auto number = std::stoull(text.substr(0, 1) + text.substr(2, 14));
  const int shift = std::stoi(text.substr(17)) - 14 + places;
  if (number == 0 || shift < -15) return "";
  if (shift >= 0) return std::to_string(number).append(static_cast<std::size_t>(shift), '0');
  unsigned long long unit = 1;
  for (int i = 0; i < -shift; ++i) unit *= 10;
  const auto rounded = number / unit + (number % unit * 2 >= unit ? 1 : 0);
  return rounded == 0 ? "" : std::to_string(rounded);
}

std::string digitsOf(std::string_view text) {
  std::string digits;
  std::copy_if(text.begin(), text.end(), std::back_inserter(digits),
               [](char c) { return c >= '0' && c <= '9'; });
  return digits;
}

std::string othersOf(std::string_view text) {
  std::string others(text);
  std::erase_if(others, [](char c) { return c == '#' || (c >= '0' && c <= '9'); });
  return others;
}

void checkFormat(double value, const std::string& pattern) {
  const std::string text = common::format(value, pattern);
  require(text.empty() || common::formatWithUnit(value, pattern, " uSec") == text + " uSec",
          "the unit follows the number");
  if (pattern.find('%') != pattern.npos) value *= 100;
  if (!std::isfinite(value)) {
    require(text.empty(), "a number that is not finite gives empty text");
    return;
  }
  const auto halves = [](std::string_view whole) {
    const std::size_t point = std::min(whole.find('.'), whole.size());
    return std::pair(whole.substr(0, point), whole.substr(point));
  };
  const auto [integerPattern, fractionPattern] = halves(pattern);
  const auto [integer, fraction] = halves(text);
  const auto places =
      std::ranges::count_if(fractionPattern, [](char c) { return c == '0' || c == '#'; });
  const std::string wanted = roundedDigits(value, static_cast<int>(places));

  const std::string before = digitsOf(integer);
  std::string behind = digitsOf(fraction);
  const auto zerosIn = [](std::string_view half) {
    return static_cast<std::size_t>(std::ranges::count(half, '0'));
  };
  require(before.size() >= zerosIn(integerPattern) && behind.size() >= zerosIn(fractionPattern),
          "every 0 of a pattern shows a digit");
  require(before.size() == zerosIn(integerPattern) || before[0] != '0', "# shows no leading zero");
  require(behind.size() == zerosIn(fractionPattern) || behind.back() != '0',
          "# shows no trailing zero");
  require(behind.size() <= static_cast<std::size_t>(places), "no digit without a position");
  behind.resize(static_cast<std::size_t>(places), '0');
  const std::string shown = before + behind;
  require(shown.substr(std::min(shown.find_first_not_of('0'), shown.size())) == wanted,
          "the digits are those of the rounded value");
  const std::string sign = value < 0 && !wanted.empty() ? "-" : "";
  require(othersOf(text) == sign + othersOf(pattern), "sign and copied characters stand as wanted");
}

void checkNumberText(double value) {
  const std::string text = common::numberText(value);
  if (!std::isfinite(value)) {
    require(text.empty(), "a number that is not finite gives empty text");
    return;
  }
  std::string wanted = value == 0 ? "0" : printed("%.15g", value);
  std::ranges::replace(wanted, 'e', 'E');
  require(text == wanted, "a number's text has its 15 digits");
  const double largest = std::numeric_limits<double>::max();
  require(common::readNumber(text) ==
              std::clamp(std::strtod(wanted.c_str(), nullptr), -largest, largest),
          "a number's text reads as what it says");
}

template <typename Whole>
void checkWhole(double value) {
  const Whole whole = common::toWhole<Whole>(value);
  const auto least = static_cast<double>(std::numeric_limits<Whole>::min());
  const auto most = static_cast<double>(std::numeric_limits<Whole>::max());
  if (std::isnan(value)) {
    require(whole == 0, "no number counts as 0");
    return;
  }
  const double wanted = std::clamp(value, least, most);
  require(std::fabs(whole - wanted) <= 0.5, "a whole number is the nearest one in range");
  require(std::fabs(whole - wanted) < 0.5 || whole % 2 == 0, "a half goes to the even neighbour");
  require(common::wholeText(whole) == std::to_string(whole), "a whole number's text is its digits");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  const double value = fuzz::anyNumber(input);
  checkFormat(value, anyPattern(input));
  checkNumberText(value);
  checkWhole<std::uint8_t>(value);
  checkWhole<std::int16_t>(value);
  checkWhole<std::int32_t>(value);
  return 0;
}
