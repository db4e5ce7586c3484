#include "calc/comparator.h"

#include "calc/joined.h"

#include <gtest/gtest.h>

#include <utility>

namespace tarnwick::calc {
namespace {

TEST(Comparator, ShowsRangesAndVoltagesOfAValidSupply) {
  ComparatorShown shown;
  std::string kept = "|||";
  using Case = std::pair<ComparatorInputs, const char*>;
  for (const auto& [inputs, texts] :
       {Case{{3, VrefRange::Low},
             "0.000 - 1.875 Volt|0.750 - 2.156 Volt|0.000/0.125/0.250/0.375/0.500/0.625/0.750/"
             "0.875/1.000/1.125/1.250/1.375/1.500/1.625/1.750/1.875/|"},
        Case{{5, VrefRange::High},
             "0.000 - 3.125 Volt|1.250 - 3.594 Volt|1.250/1.406/1.563/1.719/1.875/2.031/2.188/"
             "2.344/2.500/2.656/2.813/2.969/3.125/3.281/3.438/3.594/|"},
        Case{{0, VrefRange::Low}, nullptr}, Case{{5.26, VrefRange::Low}, nullptr},
        Case{{1E-9, VrefRange::High}, "0.000 - 0.000 Volt|"},
        Case{{5.25, VrefRange::Low}, "0.000 - 3.281 Volt|1.313 - 3.773 Volt|"},
        Case{{-4, VrefRange::Low}, "0.000 - -2.500 Volt|-1.000 - -2.875 Volt|"}}) {
    shown = next(shown, inputs);
    if (texts != nullptr) kept = texts;
    EXPECT_EQ(shown.invalidVdd, texts == nullptr) << inputs.vdd;
    EXPECT_EQ(joined(shown.lowRange, shown.highRange, shown.vref).substr(0, kept.size()), kept)
        << inputs.vdd;
  }
}

}  // namespace
}  // namespace tarnwick::calc
