// Every text that a window shows in several lines or copies: whatever its fields hold, it is made
// of printable lines, and shows no number that is not finite.

#include "calc/adc.h"
#include "calc/comparator.h"
#include "calc/lcd_text.h"
#include "calc/pwm.h"
#include "calc/serial_text.h"
#include "calc/timer_search.h"
#include "common/number_text.h"
#include "fuzz/input.h"

#include <algorithm>
#include <initializer_list>
#include <vector>

namespace {

using namespace tarnwick;
using fuzz::anyNumber;
using fuzz::fieldText;
using fuzz::require;

void checkLine(std::string_view text) {
  require(std::ranges::none_of(text, [](char c) { return (c >= 0 && c < ' ') || c == 127; }),
          "a line is printable");
  require(text.find("inf") == text.npos && text.find("nan") == text.npos,
          "a number that is not finite is not shown");
}

std::vector<std::string> checkedLines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find(common::lineEnd);
    require(end != text.npos, "every line ends with CR LF");
    lines.emplace_back(text.substr(0, end));
    checkLine(lines.back());
    text.remove_prefix(end + common::lineEnd.size());
  }
  return lines;
}

void checkCount(std::size_t count, std::initializer_list<std::string> columns) {
  for (const std::string& column : columns)
    require(checkedLines(column).size() == count, "a column has a line for each match");
}

calc::SerialGoal anyGoal(FuzzedDataProvider& input) {
  return {.baud = fieldText(input), .kBaud = input.ConsumeBool(), .osc = fieldText(input)};
}

void checkUsart(FuzzedDataProvider& input) {
  const calc::UsartSetup setup{.goal = anyGoal(input),
                               .BestBRGH = input.ConsumeBool(),
                               .Spbrg = anyNumber(input),
                               .Err = anyNumber(input)};
  for (const auto& line : checkedLines(UsartRegisterText(setup)))
    require(line.find('\'') == 12, "comments stand in column 13");
  for (const auto& line : checkedLines(UsartDefineText(setup)))
    require(line.find('\'') == 22, "comments stand in column 23");
}

void checkEusart(FuzzedDataProvider& input) {
  const calc::EusartSetup setup{
      .goal = anyGoal(input),
      .brg16 = input.ConsumeBool() ? "1" : "0",
      .brgh = input.ConsumeBool() ? "1" : "0",
      .spbrg = input.ConsumeBool() ? fieldText(input)
                                   : common::wholeText(input.ConsumeIntegral<std::uint8_t>()),
      .spbrgh = fieldText(input),
      .err = fieldText(input),
      .location = fieldText(input)};
  const bool brg16 = setup.brg16 == "1";
  require(checkedLines(EusartRegisterText(setup)).size() == (brg16 ? 5 : 3), "register lines");
  require(checkedLines(EusartDefineText(setup)).size() == (brg16 ? 6 : 4), "define lines");
}

void checkAdc(FuzzedDataProvider& input) {
  const double Taq = anyNumber(input);
  const calc::AdcClock clock = calc::ClockChoice(anyNumber(input));
  checkLine(calc::adcClockText(clock));
  const auto resolution =
      input.ConsumeBool() ? calc::AdcResolution::Bits8 : calc::AdcResolution::Bits10;
  const std::string text = AdcDefineText(Taq, clock, resolution);
  const auto lines = checkedLines(text + std::string(common::lineEnd));
  require(lines.size() == 3, "three lines");
  if (!(Taq >= 0 && Taq <= 9999) || Taq != std::floor(Taq)) return;
  for (const std::string& line : lines)
    require(line.find('\'') == lines[0].find('\''), "comments stand in one column");
}

void checkComparator(FuzzedDataProvider& input) {
  const double Vdd = anyNumber(input);
  checkLine(calc::lowRangeText(Vdd));
  checkLine(calc::highRangeText(Vdd));
  checkCount(16, {vrefColumn(calc::VrefRange::Low, Vdd), vrefColumn(calc::VrefRange::High, Vdd),
                  calc::cvrColumn()});
}

void checkTimer(FuzzedDataProvider& input) {
  const auto unit = static_cast<calc::DelayUnit>(input.ConsumeIntegralInRange<int>(0, 3));
  const calc::Delay delay = calc::shownDelay(fuzz::enteredNumber(input), unit);
  const auto goal = calc::timerGoal(fuzz::enteredNumber(input), fuzz::enteredNumber(input), delay);
  const auto matches = calc::searchTimer(input.ConsumeBool() ? 256 : 65536, goal);
  const auto texts = calc::timerMatchTexts(matches, delay.unit);
  checkCount(matches.MatchCount, {texts.preload, texts.prescaler, texts.calc, texts.error});
  for (const std::string& text : {texts.bestPreload, texts.bestPrescaler, texts.bestError}) {
    require(text.empty() == !matches.best, "the best match is shown where there is one");
    checkLine(text);
  }
}

void checkPwm(FuzzedDataProvider& input) {
  const double Fosc = fuzz::enteredNumber(input) * 1000000;
  const auto limits = calc::pwmLimitTexts(calc::PwmRange(Fosc));
  checkLine(limits.min);
  checkLine(limits.max);
  const auto matches = calc::PwmSearch(Fosc, anyNumber(input));
  const auto texts = pwmMatchTexts(matches, input.ConsumeBool());
  checkCount(matches.MatchCount, {texts.calcFreq, texts.prescaler, texts.resolution,
                                  texts.maxDutyVal, texts.dutyStep, texts.PR2});
  const auto duty = pwmDutyTexts(matches, anyNumber(input), Fosc);
  require(duty.has_value() == (Fosc != 0), "without an oscillator there is no duty");
  if (duty) checkCount(matches.MatchCount, {duty->dutyRegister, duty->calcDuty});
}

void checkLcd(FuzzedDataProvider& input) {
  calc::CharacterSet set = calc::OpenEditor({});
  for (std::size_t i = 0; i < calc::slotCount; ++i) {
    const auto pixels = input.ConsumeIntegral<std::uint8_t>();
    set = SelectSlot(set, i);
    if (pixels < common::matrixPixels) set = TogglePixel(set, pixels);
    set.shown.slotTable[i].description = fieldText(input);
    set.shown.slotTable[i].constantAlias = input.ConsumeBool() ? "A" + fieldText(input) : "";
  }
  calc::LcdSettings settings;
  for (auto setting : {&calc::LcdSettings::dataPort, &calc::LcdSettings::readWritePort,
                       &calc::LcdSettings::lines, &calc::LcdSettings::dataDelayUs})
    settings.*setting = fieldText(input);
  const bool includeDefines = input.ConsumeBool();

  const auto characters = lcdCharacters(set);
  const auto lines = checkedLines(BuildLcdText(settings, includeDefines, characters));
  const auto count = [&](std::string_view start) {
    return std::ranges::count_if(lines, [&](auto& line) { return line.starts_with(start); });
  };
  require(count("DEFINE LCD_") >= (includeDefines ? 10 : 0), "define lines");
  require(count("LCDOUT $FE, $") ==
              std::ranges::count_if(characters, [](auto& c) { return !c.characterData.empty(); }),
          "a statement for each character");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::runOneOf(std::array{checkUsart, checkEusart, checkAdc, checkComparator, checkTimer,
                            checkPwm, checkLcd},
                 data, size);
  return 0;
}
