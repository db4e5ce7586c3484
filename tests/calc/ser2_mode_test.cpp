#include "calc/ser2_mode.h"

#include <gtest/gtest.h>

#include <tuple>

namespace tarnwick::calc {
namespace {

TEST(Ser2Mode, AddsTheOptionsToTheBitTimeBeforeItTestsTheRange) {
  using enum Ser2Parity;
  using Case = std::tuple<Ser2Inputs, const char*, bool>;
  Ser2Shown shown;
  for (const auto& [inputs, mode, offersOdd] :
       {Case{{300}, "3313", false},
        Case{{2400}, "396", false},
        Case{{2.4, true}, "396", false},
        Case{{57600}, "", false},
        Case{{115200}, "", false},
        Case{{9600, true}, "", false},
        Case{{9615.394}, "83", false},
        Case{{9600, false, true}, "32852", false},
        Case{{9600, false, false, true, Even}, "24660", false},
        Case{{9600, false, true, true, Odd}, "57428", true},
        Case{{57600, false, true}, "32765", false},
        Case{{1, false, false, false, Odd}, "", false},  // the offer stays as it was
        Case{{57600, false, false, false, Odd}, "8189", true},
        Case{{57600}, "", true},
        Case{{9600, false, false, false, Even}, "8276", false},
        Case{{1000000.0 / 21}, "1", false},
        Case{{50000}, "", false},
        Case{{1000000.0 / 65554}, "65534", false},
        Case{{1000000.0 / 65555}, "", false},
        Case{{0, false, true}, "", false},
        Case{{-5, false, true}, "", false},
        Case{{1e308, true, true}, "", false}}) {
    shown = next(shown, inputs);
    EXPECT_EQ(shown.mode, mode) << inputs.rate;
    EXPECT_EQ(shown.offersOdd, offersOdd) << inputs.rate;
  }
}

}  // namespace
}  // namespace tarnwick::calc
