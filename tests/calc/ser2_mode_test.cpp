#include "calc/ser2_mode.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

namespace tarnwick::calc {
namespace {

TEST(Ser2Mode, GivesTheNumbersOfTheCommonRates) {
  const std::optional<double> none;
  const double infinite = std::numeric_limits<double>::infinity();
  constexpr Ser2Options plain, open{.open = true}, parity{.parity = true};
  constexpr Ser2Options mixed{.inverted = true, .parity = true};
  constexpr Ser2Options all{.open = true, .inverted = true, .parity = true};
  using Case = std::tuple<double, Ser2Options, std::optional<double>>;
  for (const auto& [baud, options, mode] :
       {Case{300, plain, 3313}, Case{9600, plain, 84}, Case{38400, plain, 6},
        Case{57600, plain, none}, Case{57600, open, 32765}, Case{57600, parity, 8189},
        Case{9600, open, 32852}, Case{9600, mixed, 24660}, Case{9600, all, 57428},
        Case{1000000.0 / 21, plain, 1}, Case{50000, plain, none}, Case{120, all, none},
        Case{9615.394, plain, 83}, Case{1000000.0 / 65554, plain, 65534},
        Case{1000000.0 / 65555, plain, none}, Case{0, open, none}, Case{-5, open, none},
        Case{infinite, open, none}})
    EXPECT_EQ(Ser2Mode(baud, options), mode) << baud;
}

}  // namespace
}  // namespace tarnwick::calc
