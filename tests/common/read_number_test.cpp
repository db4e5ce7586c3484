#include "common/read_number.h"

#include "common/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace tarnwick::common {
namespace {

using namespace std::string_literals;

constexpr double largest = std::numeric_limits<double>::max();
constexpr double smallest = std::numeric_limits<double>::denorm_min();
const std::string megabyte(1 << 20, '0');

TEST(ReadNumber, TakesTheLeadingNumericPart) {
  using Case = std::pair<double, std::vector<std::string>>;
  for (const auto& [wanted, texts] :
       {Case{0, {"", ".", "-", "+.", "E5", "abc", "--1", "-+1", "\xD9\xA3", "\xFF\xFE", "\0001"s}},
        Case{0, {"-0", "-1D-400", "1E-400", "0E999", "2.4E-324", "1E-99999999999999999999999"}},
        Case{0, {"&", "&H", "&HG", "&B1", "-&H1", "&H-1", "." + megabyte + "1"}},
        Case{1, {"1,5", "1\r2", "1\v2", "1\xC2\xA0"s + "2", "1E+", "1E-", "1E+-3", "&H1.8"}},
        Case{3.5, {"3.5.1", "3.500", "+3.5x", "35E-1", "35d-1", ".35D1", "0.35e+1\xE2\x82\xAC"}},
        Case{-5, {"-5", "- 5 .", "-5\0003"s, "-5E", "-5Ex", "\n\t -5"}},
        Case{125, {" 1 2\t.5\n e 1", "1.25E2.5", "12.5E1E1", "& h 7 d", "&O175", "&o1758"}},
        Case{largest, {"1E999", "1.7976931348623157E308", "1.7976931348623159E308"}},
        Case{largest,
             {"1E9999999999999999999", "1" + megabyte, "&H1" + megabyte, "&O1" + megabyte}},
        Case{-largest, {"-1E999", "-1" + megabyte}}, Case{smallest, {"4.9E-324", "2.5E-324"}},
        Case{7, {megabyte + "7", "&O" + megabyte + "7", std::string(1 << 20, ' ') + "7"}},
        Case{10,
             {"1" + megabyte + "E-1048575", "." + megabyte + "1E1048578", "&H" + megabyte + "A"}},
        Case{9007199254740992, {"9007199254740993", "9007199254740993." + megabyte}},
        Case{9007199254740994, {"9007199254740993." + megabyte + "1"}},
        Case{0x1p69, {"&H200000000000010000"}},
        Case{0x1.0000000000001p69, {"&H200000000000010001"}}}) {
    for (const std::string& text : texts) {
      const double number = readNumber(text);
      EXPECT_EQ(number, wanted) << text.substr(0, 40);
      EXPECT_FALSE(number == 0 && std::signbit(number)) << text.substr(0, 40);
    }
  }
}

TEST(ReadNumber, GivesBackWhatNumberTextWrites) {
  std::mt19937_64 random(4);
  for (int turn = 0; turn < 50'000; ++turn) {
    const double value = std::bit_cast<double>(random());
    const double ordinary = static_cast<double>(random() % 1'000'000'000) / 10000;
    if (!std::isfinite(value)) continue;
    const std::string text = numberText(value);
    ASSERT_EQ(numberText(readNumber(text)), text);
    ASSERT_EQ(readNumber(numberText(ordinary)), ordinary);
    char full[40];
    std::snprintf(full, sizeof full, "%.17g", value);
    ASSERT_EQ(readNumber(full), value) << full;
  }
}

TEST(Numbers, FollowNoRegionalSetting) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr &&
      std::setlocale(LC_ALL, "German") == nullptr)
    GTEST_SKIP() << "no German locale here";
  char germanText[8];
  std::snprintf(germanText, sizeof germanText, "%.1f", 0.5);
  const std::string numbers = numberText(readNumber("1.5")) + " " + numberText(readNumber("1,5")) +
                              " " + format(1234.5, "###0.0## KHz");
  std::setlocale(LC_ALL, before.c_str());
  EXPECT_STREQ(germanText, "0,5");
  EXPECT_EQ(numbers, "1.5 1 1234.5 KHz");
}

}  // namespace
}  // namespace tarnwick::common
