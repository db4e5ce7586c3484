#include "calc/ser2_mode.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarnwick::calc {
namespace {

TEST(Ser2Mode, GivesTheNumbersOfTheCommonRates) {
  const std::optional<double> none;
  const struct {
    double baud;
    Ser2Options options;
    std::optional<double> mode;
  } cases[] = {{300, {}, 3313},
               {600, {}, 1646},
               {1200, {}, 813},
               {2400, {}, 396},
               {4800, {}, 188},
               {9600, {}, 84},
               {19200, {}, 32},
               {38400, {}, 6},
               {57600, {}, none},
               {115200, {}, none},
               {9600, {.open = true}, 32852},
               {9600, {.inverted = true, .parity = true}, 24660},
               {9600, {.open = true, .inverted = true, .parity = true}, 57428},
               {57600, {.open = true}, 32765},
               {57600, {.parity = true}, 8189},
               {1000000.0 / 21, {}, 1},
               {50000, {}, none},
               {1000000.0 / 65554, {}, 65534},
               {1000000.0 / 65555, {}, none},
               {120, {.open = true, .inverted = true, .parity = true}, none},
               {0, {}, none},
               {0, {.open = true}, none},
               {-5, {.open = true}, none},
               {std::numeric_limits<double>::infinity(), {.open = true}, none}};
  for (const auto& c : cases) EXPECT_EQ(Ser2Mode(c.baud, c.options), c.mode) << c.baud;
}

}  // namespace
}  // namespace tarnwick::calc
