#include "common/number_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace tarnwick::common {
namespace {

// A pattern in use, as the counts of its positions.
struct Pattern {
  std::string text;
  std::string ending;
  std::size_t integerZeros;
  std::size_t fractionPositions;
  std::size_t fractionZeros;
};

const std::vector<Pattern> patternsInUse{{"###0.0###", "", 1, 4, 1},
                                         {"####.0##", "", 0, 3, 1},
                                         {"####0.0##", "", 1, 3, 1},
                                         {"#####", "", 0, 0, 0},
                                         {"##0.0##", "", 1, 3, 1},
                                         {"###0.0## Hz", " Hz", 1, 3, 1},
                                         {"###0.0## KHz", " KHz", 1, 3, 1},
                                         {"###0.0## MHz", " MHz", 1, 3, 1},
                                         {"0.0## KHz", " KHz", 1, 3, 1},
                                         {"0.0## Hz", " Hz", 1, 3, 1},
                                         {"###.0#", "", 0, 2, 1},
                                         {"0.0#%", "%", 1, 2, 1},
                                         {"0.000", "", 1, 3, 3},
                                         {"##0.000", "", 1, 3, 3}};

// The next three functions work out decimal digits in whole numbers of any size, with nothing of
// the standard library's floating-point conversions.
using Limbs = std::vector<std::uint32_t>;  // nine decimal digits each, the lowest first
constexpr std::uint32_t limbBase = 1'000'000'000;

void multiply(Limbs& limbs, std::uint32_t factor) {
  std::uint64_t carry = 0;
  for (std::uint32_t& limb : limbs) {
    carry += std::uint64_t{limb} * factor;
    limb = static_cast<std::uint32_t>(carry % limbBase);
    carry /= limbBase;
  }
  if (carry > 0) limbs.push_back(static_cast<std::uint32_t>(carry));
}

// The 15 significant digits of a number's magnitude, ties to the even neighbour, as one whole
// number times ten to the power `power`.
struct FifteenDigits {
  std::uint64_t whole = 0;
  int power = 0;
};

FifteenDigits fifteenDigits(double value) {
  if (value == 0 || !std::isfinite(value)) return {};
  int exponent = 0;
  auto mantissa =
      static_cast<std::uint64_t>(std::ldexp(std::frexp(std::fabs(value), &exponent), 53));
  for (exponent -= 53; mantissa % 2 == 0; mantissa /= 2) ++exponent;

  // mantissa * 2^exponent, or mantissa * 5^-exponent / 10^-exponent.
  Limbs limbs{static_cast<std::uint32_t>(mantissa % limbBase),
              static_cast<std::uint32_t>(mantissa / limbBase)};
  const std::uint32_t factor = exponent < 0 ? 5 : 2;
  int left = std::abs(exponent);
  for (; left >= 12; left -= 12) multiply(limbs, factor == 5 ? 244'140'625 : 4096);
  for (; left > 0; --left) multiply(limbs, factor);

  std::string digits;
  for (auto limb = limbs.rbegin(); limb != limbs.rend(); ++limb)
    digits += std::to_string(limbBase + *limb).substr(1);
  digits.erase(0, digits.find_first_not_of('0'));
  const int power = static_cast<int>(digits.size()) + std::min(exponent, 0) - 15;
  digits.append(16, '0');
  FifteenDigits result{std::stoull(digits.substr(0, 15)), power};
  const std::string half = "5" + std::string(digits.size() - 16, '0');
  const int beyond = digits.compare(15, std::string::npos, half);
  if (beyond > 0 || (beyond == 0 && result.whole % 2 == 1)) ++result.whole;
  return result;
}

std::string exactText(FifteenDigits number, bool negative, const Pattern& pattern) {
  int zeros = number.power + static_cast<int>(pattern.fractionPositions);
  for (; zeros < -1 && number.whole > 0; ++zeros) number.whole /= 10;
  if (zeros < 0) number.whole = (number.whole + 5) / 10;
  const std::size_t width = pattern.fractionPositions + pattern.integerZeros;
  std::string text = number.whole > 0 ? std::to_string(number.whole) : "";
  if (number.whole > 0 && zeros > 0) text.append(static_cast<std::size_t>(zeros), '0');
  if (text.size() < width) text.insert(0, width - text.size(), '0');
  std::size_t dropped = pattern.fractionPositions - pattern.fractionZeros;
  for (; dropped > 0 && text.back() == '0'; --dropped) text.pop_back();
  if (pattern.fractionPositions > 0)
    text.insert(text.size() - pattern.fractionZeros - dropped, ".");
  return (negative && number.whole > 0 ? "-" : "") + text + pattern.ending;
}

// Values of every kind by turns: any double at all, every decade alike, halves in the decimal and
// in the binary sense, numbers just beside those, whole numbers.
double randomValue(std::mt19937_64& random, int turn) {
  const auto pick = [&](std::int64_t from, std::int64_t to) {
    return static_cast<double>(std::uniform_int_distribution<std::int64_t>(from, to)(random));
  };
  const double sign = pick(0, 7) == 0 ? -1 : 1;
  switch (turn % 20) {
    case 0:
      return std::bit_cast<double>(random());
    case 1:
      return sign * pick(0, 70000);
    case 2:
      return sign * std::ldexp(pick(0, 1 << 24), -static_cast<int>(pick(0, 12)));
    case 3:
      return sign * std::ldexp(pick(0, std::int64_t{1} << 53), -static_cast<int>(pick(0, 8)));
    case 4:
    case 5:
    case 6:
      return sign * pick(0, 1 << 24) * 5 / std::pow(10, pick(0, 6));
    case 7:
      return std::nextafter(pick(0, 1 << 24) * 5 / std::pow(10, pick(0, 6)), sign * 1e300);
    default:
      return sign * std::pow(10, pick(-9'000'000, 16'000'000) / 1e6);
  }
}

TEST(Format, FollowsThePatterns) {
  constexpr double infinite = std::numeric_limits<double>::infinity();
  struct Case {
    double value;
    const char* pattern;
    const char* text;
  };
  for (const Case& c : {Case{0, "#####", ""},
                        Case{200, "#####", "200"},
                        Case{0.5, "####.0##", ".5"},
                        Case{0, "####.0##", ".0"},
                        Case{1234.5678, "####.0##", "1234.568"},
                        Case{2, "###0.0###", "2.0"},
                        Case{0.0625, "###0.0###", "0.0625"},
                        Case{0.004, "0.0#%", "0.4%"},
                        Case{12.3456, "##0.0##", "12.346"},
                        Case{0.0005, "##0.0##", "0.001"},
                        Case{2.5, "0", "3"},
                        Case{999.9996, "##0.0##", "1000.0"},
                        Case{-0.0, "0.0##", "0.0"},
                        Case{-0.0005, "0.0##", "-0.001"},
                        Case{7, "000.00 K-Hz", "007.00 K-Hz"},
                        Case{12, ".0", "12.0"},
                        Case{12345, "#-##", "123-45"},
                        Case{1.0000000000000002, "0.0################", "1.0"},
                        Case{infinite, "0.0", ""},
                        Case{std::nan(""), "0.0#%", ""},
                        Case{1e307, "0.0#%", ""}})
    EXPECT_EQ(format(c.value, c.pattern), c.text) << c.value << ' ' << c.pattern;
}

TEST(Format, AgreesWithWholeNumberArithmeticOnAMillionValues) {
  constexpr std::size_t patternsPerValue = 3;
  std::mt19937_64 random(1);
  std::size_t next = 0;
  for (int turn = 0; turn < 1'000'000; ++turn) {
    const double value = randomValue(random, turn);
    const FifteenDigits plain = fifteenDigits(value);
    for (std::size_t i = 0; i < patternsPerValue; ++i) {
      const Pattern& pattern = patternsInUse[next++ % patternsInUse.size()];
      const bool percent = pattern.ending == "%";
      if (!std::isfinite(percent ? value * 100 : value)) continue;
      const FifteenDigits digits = percent ? fifteenDigits(value * 100) : plain;
      ASSERT_EQ(format(value, pattern.text), exactText(digits, value < 0, pattern))
          << std::hexfloat << value << ' ' << pattern.text;
    }
  }
}

TEST(FormatWithUnit, AppendsTheUnitToWhatIsShown) {
  EXPECT_EQ(formatWithUnit(5, "###0.0###", " MHz"), "5.0 MHz");
  EXPECT_EQ(formatWithUnit(0, "#####", " %"), " %");
  EXPECT_EQ(formatWithUnit(1.0 / 0.0, "0.0", " uSec"), "");
  EXPECT_EQ(formatWithUnit(1e307, "0.0%", " of it"), "");
}

TEST(NumberText, IsAsShortAsFifteenDigitsAllow) {
  struct Case {
    double value;
    const char* text;
  };
  for (const Case& c : {Case{64, "64"}, Case{0, "0"}, Case{-0.0, "0"}, Case{0.1 + 0.2, "0.3"},
                        Case{0.0001, "0.0001"}, Case{0.00001, "1E-05"},
                        Case{999999999999999, "999999999999999"}, Case{1e15, "1E+15"},
                        Case{-1.25e-7, "-1.25E-07"}, Case{HUGE_VAL, ""}, Case{std::nan(""), ""}})
    EXPECT_EQ(numberText(c.value), c.text) << c.value;
}

TEST(NumberText, WritesTheDigitsOfTheCLibrary) {
  std::mt19937_64 random(2);
  for (int turn = 0; turn < 300'000; ++turn) {
    const double value = randomValue(random, turn);
    if (!std::isfinite(value) || value == 0) continue;
    std::array<char, 40> text;
    std::snprintf(text.data(), text.size(), "%.15G", value);
    ASSERT_EQ(numberText(value), text.data());
  }
}

TEST(WholeText, WritesEveryWholeNumber) {
  EXPECT_EQ(wholeText(0), "0");
  EXPECT_EQ(wholeText(-128), "-128");
  EXPECT_EQ(wholeText(65535), "65535");
  EXPECT_EQ(wholeText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

}  // namespace
}  // namespace tarnwick::common
