#include "common/oscillator.h"

#include <gtest/gtest.h>

namespace tarnwick::common {
namespace {

TEST(OscillatorSetting, AcceptsCorrectsOrWarns) {
  struct Case {
    double entered;
    double accepted;
    bool warns;
  };
  for (const Case& c :
       {Case{0, 1, false}, Case{-0.0, 1, false}, Case{4, 4, false}, Case{64, 64, false},
        Case{64.5, 64, true}, Case{1e300, 64, true}, Case{-5, -5, false}}) {
    OscillatorSetting setting{.MaxOsc = 64};
    const auto message = setting.SetOsc(c.entered);
    EXPECT_EQ(setting.Osc, c.accepted) << c.entered;
    EXPECT_EQ(message.has_value(), c.warns) << c.entered;
  }
}

TEST(OscillatorSetting, NamesTheMaximumInItsMessage) {
  OscillatorSetting setting{.MaxOsc = 64};
  const auto message = setting.SetOsc(100);
  ASSERT_TRUE(message);
  EXPECT_EQ(message->title, "Oscillator speed to high");
  EXPECT_EQ(message->text, "As now maximum allowed is 64 MHz");
}

}  // namespace
}  // namespace tarnwick::common
