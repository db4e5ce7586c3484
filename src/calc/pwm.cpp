#include "calc/pwm.h"

#include "common/lines.h"
#include "common/number_text.h"
#include "common/rounding.h"

#include <cstddef>
#include <utility>

namespace tarnwick::calc {
namespace {

using common::addLine;
using common::format;
using common::formatWithUnit;
using common::numberText;
using common::roundHalfEven;
using common::wholeText;

PwmMatch matchFor(double foscHz, double frequencyHz, std::uint8_t P, double PR2) {
  const double Tcy = 1 / (foscHz / 4);
  PwmMatch match;
  match.Prescaler = P;
  match.PR2 = PR2;
  match.FreqKHz = (1 / ((PR2 + 1) * Tcy * P)) / 1000;
  match.MaxDutyVal = roundHalfEven((1 / frequencyHz) / ((1 / foscHz) * P));
  match.DutyStep = 100 / match.MaxDutyVal;
  match.Resolution = PwmResolution(match.MaxDutyVal);
  return match;
}

void addMatch(PwmShown& shown, const PwmMatch& match, bool kHz) {
  addLine(shown.calcFreq, " ",
          kHz ? format(match.FreqKHz, "0.0## KHz") : format(match.FreqKHz * 1000, "0.0## Hz"));
  addLine(shown.prescaler, "1:", wholeText(match.Prescaler));
  addLine(shown.resolution, wholeText(match.Resolution), " Bit");
  addLine(shown.maxDutyVal, numberText(match.MaxDutyVal));
  addLine(shown.dutyStep, formatWithUnit(match.DutyStep, "##0.0##", " %"));
  addLine(shown.PR2, "  ", numberText(match.PR2));
}

}  // namespace

PwmLimits PwmRange(double foscHz) {
  PwmLimits limits;
  limits.MinHz = 1 / ((1 / (foscHz / 4)) * 256 * 16);
  limits.MaxKHz = (1 / (2 * (1 / (foscHz / 4)))) / 1000;
  return limits;
}

PwmMatches PwmSearch(double foscHz, double frequencyHz) {
  const double Tcy = 1 / (foscHz / 4);
  PwmMatches matches;
  for (std::size_t i = 0; i < pwmPrescalers.size(); ++i) {
    const std::uint8_t P = pwmPrescalers[i];
    const double PR2 = (1 / frequencyHz) / (Tcy * P) - 1;
    if (PR2 < 0) matches.aboveRange = true;
    if (!(PR2 >= 0 && PR2 <= 255)) continue;
    ++matches.MatchCount;
    matches.bySlot[i] = matchFor(foscHz, frequencyHz, P, roundHalfEven(PR2));
  }
  return matches;
}

PwmDutyValue PwmDuty(const PwmMatch& match, double dutyPercent, double foscHz) {
  const double P = match.Prescaler;
  const double fHz = match.FreqKHz * 1000;
  const double Ton = (dutyPercent / 100) * (1 / fHz);
  PwmDutyValue duty;
  duty.Register = roundHalfEven(Ton / ((1 / foscHz) * P));
  if (duty.Register > match.MaxDutyVal) duty.Register = match.MaxDutyVal;
  duty.Duty = (((1 / foscHz) * duty.Register * P) / (1 / fHz)) * 100;
  return duty;
}

int PwmResolution(double maxDutyVal) {
  constexpr std::array thresholds{512, 256, 64, 32, 16, 8, 4, 2, 1};
  int bits = 10;
  for (const int threshold : thresholds) {
    if (maxDutyVal > threshold) return bits;
    --bits;
  }
  return 1;
}

PwmShown showPwm(const PwmInputs& inputs) {
  const double foscHz = inputs.foscMHz * 1000000;
  const double frequencyHz = inputs.kHz ? inputs.frequency * 1000 : inputs.frequency;
  const auto [MinHz, MaxKHz] = PwmRange(foscHz);
  PwmShown shown;
  shown.matches = PwmSearch(foscHz, frequencyHz);
  shown.minFreq =
      MinHz < 1000 ? format(MinHz, "###0.0## Hz") : format(MinHz / 1000, "###0.0## KHz");
  shown.maxFreq =
      MaxKHz < 1000 ? format(MaxKHz, "###0.0## KHz") : format(MaxKHz / 1000, "###0.0## MHz");
  for (const auto& match : shown.matches.bySlot)
    if (match) addMatch(shown, *match, inputs.kHz);
  return next(std::move(shown), inputs);
}

PwmShown next(PwmShown shown, const PwmInputs& inputs) {
  const double foscHz = inputs.foscMHz * 1000000;
  if (foscHz == 0) return shown;
  shown.dutyRegister.clear();
  shown.calcDuty.clear();
  for (const auto& match : shown.matches.bySlot) {
    if (!match) continue;
    const PwmDutyValue duty = PwmDuty(*match, inputs.dutyPercent, foscHz);
    addLine(shown.dutyRegister,
            numberText(duty.Register < 2000 ? duty.Register : duty.Register / 1000));
    addLine(shown.calcDuty, formatWithUnit(duty.Duty, "###.0#", " %"));
  }
  return shown;
}

}  // namespace tarnwick::calc
