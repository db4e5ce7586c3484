#include "calc/comparator.h"

#include "common/number_text.h"
#include "common/read_number.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace tarnwick::calc {
namespace {

std::vector<std::string> linesOf(const std::string& column) {
  std::vector<std::string> lines;
  std::istringstream stream(column);
  for (std::string line; std::getline(stream, line);) {
    EXPECT_TRUE(line.ends_with('\r'));
    line.pop_back();
    lines.push_back(line);
  }
  EXPECT_TRUE(column.ends_with("\r\n"));
  return lines;
}

TEST(Vref, TabulatesBothRanges) {
  using Lines = std::vector<std::string>;
  EXPECT_EQ(linesOf(vrefColumn(VrefRange::Low, 3)),
            (Lines{"0.000", "0.125", "0.250", "0.375", "0.500", "0.625", "0.750", "0.875", "1.000",
                   "1.125", "1.250", "1.375", "1.500", "1.625", "1.750", "1.875"}));
  EXPECT_EQ(linesOf(vrefColumn(VrefRange::Low, 5)),
            (Lines{"0.000", "0.208", "0.417", "0.625", "0.833", "1.042", "1.250", "1.458", "1.667",
                   "1.875", "2.083", "2.292", "2.500", "2.708", "2.917", "3.125"}));
  EXPECT_EQ(linesOf(vrefColumn(VrefRange::High, 5)),
            (Lines{"1.250", "1.406", "1.563", "1.719", "1.875", "2.031", "2.188", "2.344", "2.500",
                   "2.656", "2.813", "2.969", "3.125", "3.281", "3.438", "3.594"}));
}

TEST(Vref, NamesTheSpanOfEachRange) {
  EXPECT_EQ(lowRangeText(5), "0.000 - 3.125 Volt");
  EXPECT_EQ(highRangeText(5), "1.250 - 3.594 Volt");
  EXPECT_EQ(lowRangeText(3), "0.000 - 1.875 Volt");
  EXPECT_EQ(highRangeText(-4), "-1.000 - -2.875 Volt");
}

TEST(Vref, AcceptsASupplyUpToItsLimit) {
  for (const double Vdd : {5.25, 0.0001, -5.0}) EXPECT_TRUE(isValidVdd(Vdd)) << Vdd;
  for (const double Vdd : {0.0, -0.0, 5.26, 5.2500001, 1e300}) EXPECT_FALSE(isValidVdd(Vdd)) << Vdd;
}

TEST(Vref, CountsInBinaryBesideTheVoltages) {
  const auto codes = linesOf(cvrColumn());
  ASSERT_EQ(codes.size(), 16U);
  for (std::size_t i = 0; i < codes.size(); ++i) EXPECT_EQ(std::stoul(codes[i], nullptr, 2), i);
  EXPECT_EQ(codes[3], "0011");
}

// Each voltage is written to the nearest millivolt of its fraction of the supply, whole numbers of
// tens of microvolts deciding: k / 24 or (8 + k) / 32.
TEST(Vref, WritesSixteenRoundedVoltagesForEverySupply) {
  std::mt19937 random(73);
  for (int i = 0; i < 3200; ++i) {
    const long supply = std::uniform_int_distribution(1L, 525'000L)(random);  // 10 uV
    const double Vdd = common::readNumber(std::to_string(supply) + "E-5");
    for (const VrefRange range : {VrefRange::Low, VrefRange::High}) {
      const auto lines = linesOf(vrefColumn(range, Vdd));
      ASSERT_EQ(lines.size(), 16U);
      for (long k = 0; k < 16; ++k) {
        const long parts = range == VrefRange::Low ? k : 8 + k;
        const long whole = range == VrefRange::Low ? 24 : 32;
        const long millivolts = (2 * supply * parts + 100 * whole) / (200 * whole);
        ASSERT_EQ(lines[static_cast<std::size_t>(k)],
                  common::format(static_cast<double>(millivolts) / 1000, "0.000"))
            << Vdd << " V, " << k;
      }
    }
  }
}

}  // namespace
}  // namespace tarnwick::calc
