// Typing into the entry fields: what the key filters let pass, what it reads as, and what the
// oscillator check makes of it.

#include "common/key_filter.h"
#include "common/number_text.h"
#include "common/oscillator.h"
#include "common/read_number.h"
#include "fuzz/input.h"

#include <algorithm>

namespace {

using namespace tarnwick;
using fuzz::require;

bool isDigit(char32_t c) {
  return c >= U'0' && c <= U'9';
}

// Types the characters at the end of an empty field and answers the field's text.
std::string typed(FuzzedDataProvider& input, bool decimal) {
  const auto filter = decimal ? common::decimalKey : common::wholeNumberKey;
  std::string text;
  bool pointTyped = false;
  while (input.remaining_bytes() > 0) {
    char32_t character = input.ConsumeIntegral<std::uint8_t>();
    if (character == 255) character = input.ConsumeIntegral<std::uint32_t>();
    const common::KeyVerdict verdict = filter(character, pointTyped);
    const bool point = decimal && character == U'.' && !pointTyped;
    require(verdict.enter == (character == 13), "Enter and nothing else validates");
    require(verdict.accepted == (isDigit(character) || character == 8 || point),
            "digits, backspace and the first point pass");
    require(verdict.pointTyped == (pointTyped || point), "the flag says that a point was typed");
    pointTyped = verdict.pointTyped;
    if (!verdict.accepted) continue;
    if (character != 8)
      text += static_cast<char>(character);
    else if (!text.empty())
      text.pop_back();
  }
  return text;
}

void checkOscillator(FuzzedDataProvider& input) {
  common::OscillatorSetting setting;
  if (input.ConsumeBool()) setting.MaxOsc = input.ConsumeIntegral<std::int16_t>();
  const double entered = fuzz::enteredNumber(input);
  const auto message = setting.SetOsc(entered);
  if (entered == 0) {
    require(setting.Osc == 1 && !message, "an oscillator of 0 becomes 1 MHz");
    return;
  }
  const bool tooFast = setting.MaxOsc && entered > *setting.MaxOsc;
  require(message.has_value() == tooFast, "a message is shown where the oscillator is too fast");
  require(setting.Osc == (tooFast ? *setting.MaxOsc : entered), "the oscillator is limited");
  require(!message || message->text.find(" " + common::wholeText(*setting.MaxOsc) + " MHz") !=
                          std::string::npos,
          "the message names the limit");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  checkOscillator(input);
  const bool decimal = input.ConsumeBool();
  const std::string text = typed(input, decimal);
  require(std::ranges::count(text, '.') <= (decimal ? 1 : 0), "a number has one point");
  const double largest = std::numeric_limits<double>::max();
  require(common::readNumber(text) == std::min(std::strtod(text.c_str(), nullptr), largest),
          "what was typed reads as it says");
  return 0;
}
