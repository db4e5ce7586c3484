#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tarnwick::common {

// A message that a check wants shown to the user.
struct Message {
  std::string title;
  std::string text;
};

// The oscillator frequency last accepted in any window and the check that every entered one passes.
struct OscillatorSetting {
  double Osc = 0;           // MHz
  std::int16_t MaxOsc = 0;  // MHz; set when the program starts

  // Accepts an entered frequency in MHz into Osc: 0 becomes 1, one above MaxOsc becomes MaxOsc and
  // gives the message to show; any other, also a negative one, is kept as it is.
  [[nodiscard]] std::optional<Message> SetOsc(double value);
};

}  // namespace tarnwick::common
