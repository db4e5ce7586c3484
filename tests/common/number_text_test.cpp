#include "common/number_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace tarnwick::common {
namespace {

const std::vector<std::string> patternsInUse{
    "###0.0###", "####.0##",     "####0.0##", "#####",  "##0.0##", "###0.0## Hz", "###0.0## KHz",
    "0.0## KHz", "###0.0## MHz", "0.0## Hz",  "###.0#", "0.0#%",   "0.000",       "##0.000"};

// What `format` has to write: the C library's 15 significant digits as one whole number times a
// power of ten, rounded and laid out in whole numbers.
std::string wantedText(double value, const std::string& pattern) {
  char digits[32];
  std::snprintf(digits, sizeof digits, "%.14e", std::fabs(value));
  auto whole = std::stoull(digits[0] + std::string(digits + 2, 14));
  const std::string integer = pattern.substr(0, pattern.find('.'));
  const std::size_t end = pattern.find_last_of("0#") + 1;
  const std::string fraction = pattern.substr(integer.size(), end - integer.size());
  const auto integerZeros = static_cast<std::size_t>(std::ranges::count(integer, '0'));
  const auto fractionZeros = static_cast<std::size_t>(std::ranges::count(fraction, '0'));
  const std::size_t places = fraction.empty() ? 0 : fraction.size() - 1;

  int zeros = std::atoi(digits + 17) - 14 + static_cast<int>(places);
  for (; zeros < -1 && whole > 0; ++zeros) whole /= 10;
  if (zeros < 0) whole = (whole + 5) / 10;
  std::string text = whole > 0 ? std::to_string(whole) : "";
  if (whole > 0 && zeros > 0) text.append(static_cast<std::size_t>(zeros), '0');
  if (text.size() < places + integerZeros) text.insert(0, places + integerZeros - text.size(), '0');
  std::size_t dropped = places - fractionZeros;
  for (; dropped > 0 && text.back() == '0'; --dropped) text.pop_back();
  if (places > 0) text.insert(text.size() - fractionZeros - dropped, ".");
  return (value < 0 && whole > 0 ? "-" : "") + text + pattern.substr(end);
}

// Values of every kind by turns: any double at all, halves in the binary and in the decimal sense,
// every decade alike.
double randomValue(std::mt19937_64& random, int turn) {
  const auto pick = [&](std::int64_t from, std::int64_t to) {
    return static_cast<double>(std::uniform_int_distribution<std::int64_t>(from, to)(random));
  };
  const double sign = turn % 7 == 0 ? -1 : 1;
  if (turn % 20 == 0) return std::bit_cast<double>(random());
  if (turn % 5 == 1) return sign * std::ldexp(pick(0, 1 << 24), -static_cast<int>(pick(0, 12)));
  if (turn % 5 == 2) return sign * pick(0, 1 << 24) * 5 / std::pow(10, pick(0, 6));
  return sign * std::pow(10, pick(-9'000'000, 16'000'000) / 1e6);
}

TEST(Format, FollowsThePatterns) {
  using Case = std::tuple<double, const char*, const char*>;
  for (const auto& [value, pattern, text] :
       {Case{0, "#####", ""}, Case{200, "#####", "200"}, Case{0.5, "####.0##", ".5"},
        Case{0, "####.0##", ".0"}, Case{1234.5678, "####.0##", "1234.568"}, Case{2.5, "0", "3"},
        Case{0.0625, "###0.0###", "0.0625"}, Case{0.004, "0.0#%", "0.4%"}, Case{12, ".0", "12.0"},
        Case{999.9996, "##0.0##", "1000.0"}, Case{-0.0, "0.0##", "0.0"}, Case{HUGE_VAL, "0.0", ""},
        Case{-0.0005, "0.0##", "-0.001"}, Case{7, "000.00 K-Hz", "007.00 K-Hz"},
        Case{12345, "#-##", "123-45"}, Case{std::nan(""), "0.0#%", ""}, Case{1e307, "0.0#%", ""},
        Case{1.0000000000000002, "0.0################", "1.0"}})
    EXPECT_EQ(format(value, pattern), text) << value << ' ' << pattern;
}

TEST(Format, AgreesWithWholeNumberArithmeticOnManyValues) {
  std::mt19937_64 random(1);
  std::size_t next = 0;
  for (int turn = 0; turn < 50'000; ++turn) {
    const double value = randomValue(random, turn);
    for (int i = 0; i < 3; ++i) {
      const std::string& pattern = patternsInUse[next++ % patternsInUse.size()];
      const double written = pattern.ends_with('%') ? value * 100 : value;
      ASSERT_EQ(format(value, pattern), std::isfinite(written) ? wantedText(written, pattern) : "")
          << std::hexfloat << value << ' ' << pattern;
    }
  }
}

TEST(FormatWithUnit, AppendsTheUnitToWhatIsShown) {
  EXPECT_EQ(formatWithUnit(0, "#####", " %"), " %");
  EXPECT_EQ(formatWithUnit(1.0 / 0.0, "0.0", " uSec"), "");
}

TEST(NumberText, IsAsShortAsFifteenDigitsAllow) {
  using Case = std::pair<double, const char*>;
  for (const auto& [value, text] :
       {Case{64, "64"}, Case{0, "0"}, Case{-0.0, "0"}, Case{0.1 + 0.2, "0.3"},
        Case{0.0001, "0.0001"}, Case{0.00001, "1E-05"}, Case{999999999999999, "999999999999999"},
        Case{1e15, "1E+15"}, Case{-1.25e-7, "-1.25E-07"}, Case{HUGE_VAL, ""},
        Case{std::nan(""), ""}})
    EXPECT_EQ(numberText(value), text) << value;
}

TEST(WholeText, WritesEveryWholeNumber) {
  EXPECT_EQ(wholeText(0) + wholeText(-128), "0-128");
  EXPECT_EQ(wholeText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

}  // namespace
}  // namespace tarnwick::common
