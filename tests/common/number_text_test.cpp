#include "common/number_text.h"

#include <gtest/gtest.h>

namespace tarnwick::common {
namespace {

TEST(Format, FollowsThePatterns) {
  struct Case {
    double value;
    const char* pattern;
    const char* text;
  };
  for (const Case& c :
       {Case{0, "#####", ""}, Case{200, "#####", "200"}, Case{0.5, "####.0##", ".5"},
        Case{0, "####.0##", ".0"}, Case{1234.5678, "####.0##", "1234.568"},
        Case{2, "###0.0###", "2.0"}, Case{0.0625, "###0.0###", "0.0625"},
        Case{0.004, "0.0#%", "0.4%"}, Case{12.3456, "##0.0##", "12.346"}})
    EXPECT_EQ(format(c.value, c.pattern), c.text);
}

}  // namespace
}  // namespace tarnwick::common
