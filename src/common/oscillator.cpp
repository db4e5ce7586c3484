#include "common/oscillator.h"

#include "common/number_text.h"

namespace tarnwick::common {

std::optional<Message> OscillatorSetting::SetOsc(double value) {
  if (value == 0) {
    Osc = 1;
    return std::nullopt;
  }
  if (!(value > MaxOsc)) {
    Osc = value;
    return std::nullopt;
  }
  Osc = MaxOsc;
  return Message{.title = "Oscillator speed to high",
                 .text = "As now maximum allowed is " + wholeText(MaxOsc) + " MHz"};
}

}  // namespace tarnwick::common
