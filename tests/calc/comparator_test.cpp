#include "calc/comparator.h"

#include "common/number_text.h"
#include "common/read_number.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace tarnwick::calc {
namespace {

// Each voltage is its fraction of the supply, k / 24 or (8 + k) / 32, to the nearest millivolt:
// reckoned here in whole numbers of 10 uV.
TEST(Vref, WritesSixteenRoundedVoltagesForEverySupply) {
  std::mt19937 random(73);
  for (int i = 0; i < 3200; ++i) {
    const long supply = std::uniform_int_distribution(1L, 525'000L)(random);
    const double Vdd = common::readNumber(std::to_string(supply) + "E-5");
    for (const VrefRange range : {VrefRange::Low, VrefRange::High}) {
      const long whole = range == VrefRange::Low ? 24 : 32;
      std::string expected;
      for (long parts = whole - 24; parts < whole - 8; ++parts) {
        const long millivolts = (2 * supply * parts + 100 * whole) / (200 * whole);
        expected += common::format(static_cast<double>(millivolts) / 1000, "0.000") + "\r\n";
      }
      ASSERT_EQ(vrefColumn(range, Vdd), expected) << Vdd << " V";
    }
  }
}

}  // namespace
}  // namespace tarnwick::calc
