// Reading any text as a number, and every calculator on any numbers and texts: what it shows and
// copies is made of printable lines, shows no number that is not finite, and keeps what the headers
// promise; nothing becomes a whole number that does not fit one (the sanitizers watch that).

#include "calc/adc.h"
#include "calc/character_text.h"
#include "calc/comparator.h"
#include "calc/lcd_text.h"
#include "calc/pwm.h"
#include "calc/ser2_mode.h"
#include "calc/serial_text.h"
#include "calc/timer_helper.h"
#include "common/lines.h"
#include "common/read_number.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <initializer_list>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

namespace {

using namespace tarnwick;

// Ends the run with the rule's text where it does not hold; the fuzzer then keeps the input.
void require(bool holds, const char* rule) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", rule);
  std::abort();
}

// Any number at all, not finite ones included; every other time one that users would type.
double anyNumber(FuzzedDataProvider& input) {
  switch (input.ConsumeIntegralInRange<int>(0, 5)) {
    case 0:
      return std::bit_cast<double>(input.ConsumeIntegral<std::uint64_t>());
    case 1:
      return input.PickValueInArray<double>(
          {0.0, -0.0, 1E-307, 1E307, std::numeric_limits<double>::denorm_min(),
           std::numeric_limits<double>::max(), std::numeric_limits<double>::infinity(),
           std::numeric_limits<double>::quiet_NaN(), 0.5, 40, 115200, 65535.5});
    case 2:
      return input.ConsumeFloatingPointInRange<double>(-100, 100);
    case 3:
      return input.ConsumeIntegralInRange<int>(0, 1'000'000) / 1000.0;
    default:
      return input.ConsumeIntegralInRange<int>(0, 1'000'000);
  }
}

// A finite number, as an entry field gives.
double enteredNumber(FuzzedDataProvider& input) {
  const double number = anyNumber(input);
  return std::isfinite(number) ? number : 0;
}

// A one-line text as an entry field may show: printable, UTF-8, and without the letters that "inf"
// and "nan" have in common.
std::string fieldText(FuzzedDataProvider& input, std::size_t maximum = 24) {
  std::string text;
  for (const char byte : input.ConsumeRandomLengthString(maximum)) {
    const auto code = static_cast<unsigned char>(byte);
    if (code >= 0xF0)
      text += "\u00B5";
    else if (code % 128 >= ' ' && code % 128 != 127 && (code | 32) % 128 != 'n')
      text += static_cast<char>(code % 128);
    else
      text += static_cast<char>('0' + code % 10);
  }
  return text;
}

bool isWhole(double value) {
  return value == std::floor(value);
}

void checkLine(std::string_view text) {
  require(std::ranges::none_of(text, [](char c) { return (c >= 0 && c < ' ') || c == 127; }),
          "a line is printable");
  require(text.find("inf") == text.npos && text.find("nan") == text.npos,
          "a number that is not finite is not shown");
}

// Checks the lines of a text and answers how many there are.
std::size_t lineCount(std::string_view text) {
  std::size_t count = 0;
  for (; !text.empty(); ++count) {
    const std::size_t end = text.find(common::lineEnd);
    require(end != text.npos, "every line ends with CR LF");
    checkLine(text.substr(0, end));
    text.remove_prefix(end + common::lineEnd.size());
  }
  return count;
}

void requireLines(std::size_t count, std::initializer_list<std::string_view> columns) {
  for (const std::string_view column : columns)
    require(lineCount(column) == count, "a column has a line for each match");
}

void checkLines(std::initializer_list<std::string_view> texts) {
  for (const std::string_view text : texts) checkLine(text);
}

void checkRate(const calc::RateTexts& rate) {
  checkLines({rate.spbrgh, rate.spbrg, rate.calcBaud, rate.err});
}

calc::BaudInputs anyBaud(FuzzedDataProvider& input) {
  return {.foscMHz = anyNumber(input), .rate = anyNumber(input), .kBaud = input.ConsumeBool()};
}

calc::SerialGoal anyGoal(FuzzedDataProvider& input) {
  return {.baud = fieldText(input), .kBaud = input.ConsumeBool(), .osc = fieldText(input)};
}

void checkNumber(FuzzedDataProvider& input) {
  std::string text = input.ConsumeRandomLengthString();
  const double number = common::readNumber(text);
  require(std::isfinite(number) && (number != 0 || !std::signbit(number)), "any text is a number");
  std::erase_if(text, [](char c) { return c != '.' && (c < '0' || c > '9'); });
  constexpr double largest = std::numeric_limits<double>::max();
  require(common::readNumber(text) == std::min(std::strtod(text.c_str(), nullptr), largest),
          "digits and points read as in the C library");
}

void checkUsart(FuzzedDataProvider& input) {
  const calc::UsartShown shown = calc::showUsart(anyBaud(input));
  for (const calc::RateTexts& rate : shown.rows) checkRate(rate);
  if (!shown.match) return;
  const double Spbrg = shown.match->row.Spbrg;
  require(isWhole(Spbrg) && Spbrg >= 0 && Spbrg <= 255, "SPBRG fits its register");
  const calc::SerialGoal goal = anyGoal(input);
  requireLines(3, {UsartRegisterText(goal, *shown.match)});
  requireLines(4, {UsartDefineText(goal, *shown.match)});
}

void checkEusart(FuzzedDataProvider& input) {
  calc::EusartShown shown;
  for (int turn = input.ConsumeIntegralInRange<int>(1, 4); turn > 0; --turn)
    shown = next(shown, {.baud = anyBaud(input), .location = fieldText(input)});
  for (const calc::RateTexts& rate : shown.rows) checkRate(rate);
  for (const calc::EusartMatch& match : {shown.best, shown.best16, shown.finalMatch}) {
    checkRate(match.texts);
    require(match.registers.low >= 0 && match.registers.low < 256 && match.registers.high >= 0 &&
                match.registers.high < 256,
            "the bytes fit their registers");
  }
  require(!shown.canCopy || !shown.brg16Text.empty(), "what can be copied is shown");
  const std::size_t more = shown.FinalBRG16 ? 2 : 0;
  const calc::SerialGoal goal = anyGoal(input);
  const std::string location = fieldText(input);
  requireLines(3 + more, {EusartRegisterText(goal, shown, location)});
  requireLines(4 + more, {EusartDefineText(goal, shown, location)});
}

void checkSer2(FuzzedDataProvider& input) {
  const auto parity = static_cast<calc::Ser2Parity>(input.ConsumeIntegralInRange<int>(0, 2));
  const calc::Ser2Inputs inputs{.rate = anyNumber(input),
                                .kBaud = input.ConsumeBool(),
                                .open = input.ConsumeBool(),
                                .inverted = input.ConsumeBool(),
                                .parity = parity};
  const auto mode = Ser2Mode(inputs);
  require(!mode || (isWhole(*mode) && *mode >= 1 && *mode <= 65534), "a mode fits its word");
  require(calc::next({}, inputs).mode.empty() == !mode, "a mode is shown where there is one");
}

void checkAdc(FuzzedDataProvider& input) {
  const double foscMHz = anyNumber(input);
  const auto shown = calc::showAdc(
      {.foscMHz = foscMHz, .impedance = anyNumber(input), .kOhm = input.ConsumeBool()});
  checkLines({shown.clock, shown.acquisitionTad, shown.acquisitionTime});
  require(!shown.Clock.divisor || !(64 / (40 / foscMHz) > *shown.Clock.divisor + 0.5),
          "Tad is long enough");
  const auto resolution = static_cast<calc::AdcResolution>(input.ConsumeBool());
  requireLines(3, {AdcDefineText(shown.Taq, shown.Clock, resolution).append(common::lineEnd)});
}

void checkComparator(FuzzedDataProvider& input) {
  const auto range = input.ConsumeBool() ? calc::VrefRange::Low : calc::VrefRange::High;
  const calc::ComparatorInputs inputs{.vdd = anyNumber(input), .range = range};
  const calc::ComparatorShown shown = showComparator(inputs);
  checkLines({shown.lowRange, shown.highRange});
  requireLines(16, {shown.vref, calc::cvrColumn()});
  const calc::ComparatorShown typed = next({}, inputs);
  require(typed.vref.empty() == typed.invalidVdd, "a wrong supply is kept out");
}

void checkTimer(FuzzedDataProvider& input) {
  const bool is8Bit = input.ConsumeBool();
  const double preload = anyNumber(input);
  const auto shown = calc::showTimer({.foscMHz = anyNumber(input),
                                      .is8Bit = is8Bit,
                                      .prescale = 1 << input.ConsumeIntegralInRange<int>(0, 8),
                                      .preload = preload,
                                      .reloadCycles = anyNumber(input)});
  checkLines({shown.instructionClock, shown.instructionCycle, shown.period, shown.frequency});
  const auto slider = calc::preloadSlider(is8Bit);
  const int at = std::clamp(calc::preloadPosition(preload, is8Bit), slider.minimum, slider.maximum);
  require(calc::preloadPosition(std::stoi(calc::preloadText(at, is8Bit)), is8Bit) == at,
          "the slider stands for the preload that it shows");
}

void checkTimerHelper(FuzzedDataProvider& input) {
  const calc::Delay delay{
      .value = enteredNumber(input),
      .unit = static_cast<calc::DelayUnit>(input.ConsumeIntegralInRange<int>(0, 3))};
  const calc::TimerHelperInputs inputs{
      .foscMHz = anyNumber(input), .delay = delay, .reloadCycles = anyNumber(input)};
  const calc::TimerHelperShown shown = showTimerHelper(inputs);
  require(shownDelay(shownDelay(delay)) == shownDelay(delay), "a unit moves once");
  for (const auto& [width, Max] :
       {std::pair(shown.width8, calc::counts8), std::pair(shown.width16, calc::counts16)}) {
    requireLines(width.MatchCount, {width.preload, width.prescaler, width.calc, width.error});
    checkLines({width.bestPreload, width.bestPrescaler, width.bestError});
    require(width.bestPreload.empty() == (width.MatchCount == 0), "the best match is one of them");
    if (width.MatchCount == 0) continue;
    const int best = std::stoi(width.bestPreload);
    require(best >= 0 && best < Max, "a preload fits its timer");
  }
}

void checkPwm(FuzzedDataProvider& input) {
  calc::PwmInputs inputs{.foscMHz = anyNumber(input),
                         .frequency = anyNumber(input),
                         .kHz = input.ConsumeBool(),
                         .dutyPercent = anyNumber(input)};
  calc::PwmShown shown = showPwm(inputs);
  inputs.dutyPercent = anyNumber(input);
  shown = next(shown, inputs);
  checkLines({shown.minFreq, shown.maxFreq});
  requireLines(shown.matches.MatchCount,
               {shown.calcFreq, shown.prescaler, shown.resolution, shown.maxDutyVal, shown.dutyStep,
                shown.PR2, shown.dutyRegister, shown.calcDuty});
  for (const auto& match : shown.matches.bySlot)
    require(!match || (isWhole(match->PR2) && match->PR2 >= 0 && match->PR2 <= 255),
            "PR2 fits its register");
}

void checkLcd(FuzzedDataProvider& input) {
  calc::CharacterSet set;
  OpenEditor(set);
  std::size_t characters = 0;
  std::size_t aliases = 0;
  for (std::size_t i = 0; i < calc::slotCount; ++i) {
    const auto pixel = input.ConsumeIntegral<std::uint8_t>();
    if (pixel >= common::matrixPixels) continue;
    SelectSlot(set, i);
    TogglePixel(set, pixel), ++characters;
    set.shown.slotTable[i].description = fieldText(input, calc::nameLength);
    const std::string alias = fieldText(input, calc::nameLength);
    set.shown.slotTable[i].constantAlias = alias;
    aliases += alias.empty() ? 0 : 1;
  }
  calc::LcdSettings settings;
  for (auto setting : {&calc::LcdSettings::dataPort, &calc::LcdSettings::readWritePort,
                       &calc::LcdSettings::lines, &calc::LcdSettings::dataDelayUs})
    settings.*setting = fieldText(input);
  const bool defines = input.ConsumeBool();
  const std::string text = BuildLcdText(settings, defines, set);
  requireLines((defines ? settings.readWritePort.empty() ? 14 : 16 : 0) +
                   (characters > 0 ? characters + 4 : 0) + (aliases > 0 ? aliases + 4 : 0),
               {text});

  calc::CharacterSet again;
  OpenEditor(again);
  calc::pasteCharacters(again, text);
  require(BuildLcdText(settings, defines, again) == text, "a copied text is read back");
  calc::pasteCharacters(again, input.ConsumeRemainingBytesAsString());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::array checks{checkNumber,     checkUsart, checkEusart,      checkSer2, checkAdc,
                              checkComparator, checkTimer, checkTimerHelper, checkPwm,  checkLcd};
  FuzzedDataProvider input(data, size);
  checks.at(input.ConsumeIntegralInRange<std::size_t>(0, checks.size() - 1))(input);
  return 0;
}
