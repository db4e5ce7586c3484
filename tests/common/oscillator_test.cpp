#include "common/oscillator.h"

#include <gtest/gtest.h>

#include <tuple>

namespace tarnwick::common {
namespace {

TEST(OscillatorSetting, AcceptsCorrectsOrWarns) {
  using Case = std::tuple<double, double, bool>;
  for (const auto& [entered, accepted, warns] :
       {Case{0, 1, false}, Case{-0.0, 1, false}, Case{64, 64, false}, Case{64.5, 64, true},
        Case{1e300, 64, true}, Case{-5, -5, false}}) {
    OscillatorSetting setting{.MaxOsc = 64};
    const auto message = setting.SetOsc(entered);
    EXPECT_EQ(setting.Osc, accepted) << entered;
    EXPECT_EQ(message.has_value(), warns) << entered;
  }
}

}  // namespace
}  // namespace tarnwick::common
