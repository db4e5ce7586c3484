#include "common/key_filter.h"

#include <gtest/gtest.h>

#include <string_view>

namespace tarnwick::common {
namespace {

using Filter = KeyVerdict (*)(char32_t, bool);

// Types the characters one by one and answers those that pass.
std::u32string typed(Filter filter, std::u32string_view characters) {
  std::u32string passed;
  bool pointTyped = false;
  for (const char32_t c : characters) {
    const KeyVerdict verdict = filter(c, pointTyped);
    pointTyped = verdict.pointTyped;
    if (verdict.accepted) passed.push_back(c);
  }
  return passed;
}

TEST(KeyFilter, PassesDigitsBackspaceAndOnePoint) {
  const std::u32string_view keys = U"-1,2. 3\x08.\x03\x16\x18\x7f\r\nE٣９é\U0001F600/:";
  EXPECT_EQ(typed(decimalKey, keys), U"12.3\x08");
  EXPECT_EQ(typed(wholeNumberKey, keys), U"123\x08");
}

}  // namespace
}  // namespace tarnwick::common
