#include "calc/pwm.h"

#include "common/lines.h"
#include "common/number_text.h"
#include "common/rounding.h"

#include <cstddef>

namespace tarnwick::calc {
namespace {

using common::addLine;
using common::format;
using common::formatWithUnit;
using common::numberText;
using common::roundHalfEven;

PwmMatch matchFor(double Fosc, double F, std::uint8_t P, double PR2) {
  const double Tcy = 1 / (Fosc / 4);
  PwmMatch match;
  match.Prescaler = P;
  match.PR2 = PR2;
  match.FreqKHz = (1 / ((PR2 + 1) * Tcy * P)) / 1000;
  match.MaxDutyVal = roundHalfEven((1 / F) / ((1 / Fosc) * P));
  match.DutyStep = 100 / match.MaxDutyVal;
  match.Resolution = PwmResolution(match.MaxDutyVal);
  return match;
}

}  // namespace

PwmLimits PwmRange(double Fosc) {
  PwmLimits limits;
  limits.MinHz = 1 / ((1 / (Fosc / 4)) * 256 * 16);
  limits.MaxKHz = (1 / (2 * (1 / (Fosc / 4)))) / 1000;
  return limits;
}

PwmMatches PwmSearch(double Fosc, double F) {
  const double Tcy = 1 / (Fosc / 4);
  PwmMatches matches;
  for (std::size_t i = 0; i < pwmPrescalers.size(); ++i) {
    const std::uint8_t P = pwmPrescalers[i];
    const double PR2 = (1 / F) / (Tcy * P) - 1;
    if (PR2 < 0) matches.aboveRange = true;
    if (!(PR2 >= 0 && PR2 <= 255)) continue;
    ++matches.MatchCount;
    matches.bySlot[i] = matchFor(Fosc, F, P, roundHalfEven(PR2));
  }
  return matches;
}

PwmDutyValue PwmDuty(const PwmMatch& match, double D, double Fosc) {
  const double P = match.Prescaler;
  const double fHz = match.FreqKHz * 1000;
  const double Ton = (D / 100) * (1 / fHz);
  PwmDutyValue duty;
  duty.Register = roundHalfEven(Ton / ((1 / Fosc) * P));
  if (duty.Register > match.MaxDutyVal) duty.Register = match.MaxDutyVal;
  duty.Duty = (((1 / Fosc) * duty.Register * P) / (1 / fHz)) * 100;
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

PwmLimitTexts pwmLimitTexts(const PwmLimits& limits) {
  PwmLimitTexts texts;
  texts.min = limits.MinHz < 1000 ? format(limits.MinHz, "###0.0## Hz")
                                  : format(limits.MinHz / 1000, "###0.0## KHz");
  texts.max = limits.MaxKHz < 1000 ? format(limits.MaxKHz, "###0.0## KHz")
                                   : format(limits.MaxKHz / 1000, "###0.0## MHz");
  return texts;
}

PwmMatchTexts pwmMatchTexts(const PwmMatches& matches, bool inKHz) {
  PwmMatchTexts texts;
  for (const auto& match : matches.bySlot) {
    if (!match) continue;
    addLine(texts.calcFreq, " " + (inKHz ? format(match->FreqKHz, "0.0## KHz")
                                         : format(match->FreqKHz * 1000, "0.0## Hz")));
    addLine(texts.prescaler, "1:" + common::wholeText(match->Prescaler));
    addLine(texts.resolution, common::wholeText(match->Resolution) + " Bit");
    addLine(texts.maxDutyVal, numberText(match->MaxDutyVal));
    addLine(texts.dutyStep, formatWithUnit(match->DutyStep, "##0.0##", " %"));
    addLine(texts.PR2, "  " + numberText(match->PR2));
  }
  return texts;
}

std::optional<PwmDutyTexts> pwmDutyTexts(const PwmMatches& matches, double D, double Fosc) {
  if (Fosc == 0) return std::nullopt;
  PwmDutyTexts texts;
  for (const auto& match : matches.bySlot) {
    if (!match) continue;
    const PwmDutyValue duty = PwmDuty(*match, D, Fosc);
    addLine(texts.dutyRegister,
            numberText(duty.Register < 2000 ? duty.Register : duty.Register / 1000));
    addLine(texts.calcDuty, formatWithUnit(duty.Duty, "###.0#", " %"));
  }
  return texts;
}

}  // namespace tarnwick::calc
