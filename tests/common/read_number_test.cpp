#include "common/read_number.h"

#include <gtest/gtest.h>

namespace tarnwick::common {
namespace {

TEST(ReadNumber, TakesTheLeadingNumericPart) {
  struct Case {
    const char* text;
    double number;
  };
  for (const Case& c : {Case{"", 0}, Case{".", 0}, Case{"-", 0}, Case{"3.5.1", 3.5},
                        Case{" 1 2\t.5\n e 1", 125}, Case{"&H1f", 31}, Case{"1E+", 1}})
    EXPECT_EQ(readNumber(c.text), c.number) << c.text;
}

}  // namespace
}  // namespace tarnwick::common
