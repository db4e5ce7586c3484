#include "common/read_number.h"

#include "common/number_text.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace tarnwick::common {
namespace {

using namespace std::string_literals;

constexpr double largest = std::numeric_limits<double>::max();
constexpr double smallest = std::numeric_limits<double>::denorm_min();
const std::string megabyte(1 << 20, '0');

TEST(ReadNumber, TakesTheLeadingNumericPart) {
  struct Case {
    std::string text;
    double number;
  };
  const std::vector<Case> cases{
      Case{"", 0}, Case{".", 0}, Case{"-", 0}, Case{"+.", 0}, Case{"E5", 0}, Case{"abc", 0},
      Case{"--1", 0}, Case{"-+1", 0}, Case{"4.000", 4}, Case{"3.5.1", 3.5}, Case{".5", 0.5},
      Case{"5.", 5}, Case{"-5", -5}, Case{"+7x", 7}, Case{"1,5", 1},
      // blanks, other white space, NUL, characters beyond ASCII
      Case{" 1 2\t.5\n e 1", 125}, Case{"- 1 . 5 E - 1", -0.15}, Case{"& h 1 f", 31},
      Case{"1\r2", 1}, Case{"1\v2", 1}, Case{"12\0003"s, 12}, Case{"\0001"s, 0},
      Case{"1\xC2\xA0"s + "2", 1}, Case{"\xD9\xA3", 0}, Case{"3\xE2\x82\xAC", 3},
      Case{"\xFF\xFE", 0},
      // exponents
      Case{"1E3", 1000}, Case{"1e3", 1000}, Case{"1D3", 1000}, Case{"25d-2", 0.25}, Case{"1E+", 1},
      Case{"1E-", 1}, Case{"2Ex", 2}, Case{"2E5.5", 200000}, Case{"1E1E1", 10}, Case{"1E+-3", 1},
      // beyond the range of a double
      Case{"1E999", largest}, Case{"-1E999", -largest}, Case{"-1D-400", 0}, Case{"1E-400", 0},
      Case{"0E999", 0}, Case{"1E99999999999999999999999", largest},
      Case{"1E-99999999999999999999999", 0}, Case{"1.7976931348623157E308", largest},
      Case{"1.7976931348623159E308", largest}, Case{"4.9E-324", smallest},
      Case{"2.5E-324", smallest}, Case{"2.4E-324", 0},
      // megabyte texts
      Case{"1" + megabyte, largest}, Case{"." + megabyte + "1", 0}, Case{megabyte + "7", 7},
      Case{"1" + megabyte + "E-1048576", 1}, Case{"." + megabyte + "25E1048577", 2.5},
      Case{"9007199254740993", 9007199254740992},
      Case{"9007199254740993." + megabyte, 9007199254740992},
      Case{"9007199254740993." + megabyte + "1", 9007199254740994},
      Case{std::string(1 << 20, ' ') + "8", 8}, Case{std::string(1 << 20, 'x'), 0},
      // hexadecimal and octal
      Case{"&H1f", 31}, Case{"&hFFFF", 65535}, Case{"&O17", 15}, Case{"&o78", 7}, Case{"&HG", 0},
      Case{"&", 0}, Case{"&B1", 0}, Case{"&H", 0}, Case{"-&H1", 0}, Case{"&H-1", 0},
      Case{"&H1.8", 1}, Case{"&HFFFFFFFFFFFFFFFFF", 0x1p68}, Case{"&H200000000000010000", 0x1p69},
      Case{"&H200000000000010001", 0x1.0000000000001p69}, Case{"&H1" + megabyte, largest},
      Case{"&O1" + megabyte, largest}, Case{"&H" + megabyte + "A", 10}};
  for (const Case& c : cases) {
    const double number = readNumber(c.text);
    EXPECT_EQ(number, c.number) << c.text.substr(0, 40);
    EXPECT_FALSE(number == 0 && std::signbit(number)) << c.text.substr(0, 40);
  }
}

TEST(ReadNumber, AgreesWithTheCLibraryOnDecimalTexts) {
  std::mt19937_64 random(3);
  const auto pick = [&](int from, int to) {
    return std::uniform_int_distribution<int>(from, to)(random);
  };
  const auto digits = [&](int count) {
    std::string text;
    for (; count > 0; --count) text += static_cast<char>('0' + pick(0, 9));
    return text;
  };
  for (int turn = 0; turn < 200'000; ++turn) {
    const int longest = turn % 100 == 0 ? 900 : 12;
    std::string text = (pick(0, 3) == 0 ? "-" : "") + digits(pick(1, longest));
    if (pick(0, 3) != 0) text += "." + digits(pick(0, longest));
    if (pick(0, 3) == 0) text += (pick(0, 1) == 0 ? "e" : "E-") + std::to_string(pick(0, 330));
    const double number = readNumber(text);
    const double wanted = std::strtod(text.c_str(), nullptr);
    ASSERT_EQ(number, std::isfinite(wanted) ? wanted : std::copysign(largest, wanted)) << text;
  }
}

TEST(ReadNumber, GivesBackWhatNumberTextWrites) {
  std::mt19937_64 random(4);
  for (int turn = 0; turn < 200'000; ++turn) {
    const double value = std::bit_cast<double>(random());
    const double ordinary = static_cast<double>(random() % 1'000'000'000) / 10000;
    if (!std::isfinite(value)) continue;
    const std::string text = numberText(value);
    ASSERT_EQ(numberText(readNumber(text)), text);
    ASSERT_EQ(readNumber(numberText(ordinary)), ordinary);
    std::array<char, 40> full;
    std::snprintf(full.data(), full.size(), "%.17g", value);
    ASSERT_EQ(readNumber(full.data()), value) << full.data();
  }
}

TEST(ReadNumber, GivesAFiniteNumberForAnyBytes) {
  const std::string alphabet = "0123456789012345678900.. \t+-&EeDHhO\0\r,xF\xC3"s;
  std::mt19937_64 random(5);
  for (int turn = 0; turn < 200'000; ++turn) {
    std::string text(random() % 24, ' ');
    for (char& c : text) c = alphabet[random() % alphabet.size()];
    const double number = readNumber(text);
    ASSERT_TRUE(std::isfinite(number)) << text;
    ASSERT_EQ(readNumber(" " + text + "\nx"), number) << text;
  }
}

TEST(Numbers, FollowNoRegionalSetting) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) GTEST_SKIP() << "no German locale here";
  std::array<char, 8> germanText;
  std::snprintf(germanText.data(), germanText.size(), "%.1f", 0.5);
  const double number = readNumber("1.5");
  const double cut = readNumber("1,5");
  const std::string pattern = format(1234.5, "###0.0## KHz");
  const std::string general = numberText(1234567.5);
  std::setlocale(LC_ALL, before.c_str());
  EXPECT_STREQ(germanText.data(), "0,5");
  EXPECT_EQ(number, 1.5);
  EXPECT_EQ(cut, 1);
  EXPECT_EQ(pattern, "1234.5 KHz");
  EXPECT_EQ(general, "1234567.5");
}

}  // namespace
}  // namespace tarnwick::common
