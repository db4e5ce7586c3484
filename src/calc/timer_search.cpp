#include "calc/timer_search.h"

#include "common/lines.h"
#include "common/number_text.h"
#include "common/read_number.h"

#include <cmath>
#include <string_view>

namespace tarnwick::calc {
namespace {

using common::addLine;
using common::format;
using common::formatWithUnit;
using common::numberText;

double periodOf(const Delay& delay) {
  switch (delay.unit) {
    case DelayUnit::uSec:
      return delay.value;
    case DelayUnit::mSec:
      return delay.value * 1000;
    case DelayUnit::Hz:
      return (1 / delay.value) * 1000000;
    case DelayUnit::KHz:
      break;
  }
  return (1 / delay.value) * 1000;
}

double inUnit(double period, DelayUnit unit) {
  switch (unit) {
    case DelayUnit::uSec:
      return period;
    case DelayUnit::mSec:
      return period / 1000;
    case DelayUnit::Hz:
      return 1 / (period / 1000000);
    case DelayUnit::KHz:
      break;
  }
  return 1 / (period / 1000);
}

double toleranceIn(DelayUnit unit) {
  return unit == DelayUnit::uSec || unit == DelayUnit::mSec ? 5 : 2;
}

std::string_view unitText(DelayUnit unit) {
  constexpr std::array<std::string_view, 4> texts{" uSec", " mSec", " Hz", " KHz"};
  return texts[static_cast<std::size_t>(unit)];
}

std::optional<TimerMatch> matchFor(int Max, const TimerGoal& goal, std::uint16_t P) {
  const double x = (goal.Deff * goal.Fcy) / (P * Max);
  if (!(x < 1)) return std::nullopt;
  const double preload = std::floor(Max - (goal.Deff * goal.Fcy) / P);
  if (preload < 0 || preload >= Max) return std::nullopt;

  const double target = goal.Rt + goal.Deff;
  const double achieved = (1 / goal.Fcy) * P * (Max - preload) + goal.Rt;
  if (!std::isfinite(achieved)) return std::nullopt;
  double error = std::fabs(target - achieved);
  if (error > 0) error = error / achieved * 100;

  const double calc = inUnit(achieved, goal.unit);
  const double tolerance = toleranceIn(goal.unit);
  if (!(goal.wanted + tolerance > calc && goal.wanted - tolerance < calc)) return std::nullopt;
  return TimerMatch{.Prescaler = P, .Preload = preload, .Calc = calc, .Error = error};
}

}  // namespace

Delay shownDelay(double value, DelayUnit unit) {
  Delay delay{.value = value, .unit = unit, .text = std::nullopt};
  const auto moveTo = [&delay](DelayUnit other, double converted) {
    delay.text = numberText(converted);
    delay.value = common::readNumber(*delay.text);
    delay.unit = other;
  };
  if (delay.unit == DelayUnit::KHz && !(delay.value >= 1))
    moveTo(DelayUnit::Hz, delay.value * 1000);
  if (delay.unit == DelayUnit::Hz && !(delay.value < 1000))
    moveTo(DelayUnit::KHz, delay.value / 1000);
  return delay;
}

TimerGoal timerGoal(double foscMHz, double reloadCycles, const Delay& delay) {
  TimerGoal goal;
  goal.Fcy = foscMHz / 4;
  goal.Rt = reloadCycles * (1 / goal.Fcy);
  goal.Deff = periodOf(delay) - goal.Rt;
  goal.wanted = delay.value;
  goal.unit = delay.unit;
  return goal;
}

TimerMatches searchTimer(int Max, const TimerGoal& goal) {
  TimerMatches matches;
  for (const std::uint16_t P : timerPrescalers) {
    const auto match = matchFor(Max, goal, P);
    if (!match) continue;
    matches.found[matches.MatchCount++] = *match;
    if (!matches.best || match->Error < matches.best->Error) matches.best = match;
  }
  return matches;
}

TimerMatchTexts timerMatchTexts(const TimerMatches& matches, DelayUnit unit) {
  TimerMatchTexts texts;
  for (const TimerMatch& match : matches.list()) {
    addLine(texts.preload, format(match.Preload, "#####"));
    addLine(texts.prescaler, "1:" + numberText(match.Prescaler));
    addLine(texts.calc, formatWithUnit(match.Calc, "####0.0##", unitText(unit)));
    addLine(texts.error, formatWithUnit(match.Error, "##0.0##", " %"));
  }
  if (!matches.best) return texts;
  texts.bestPreload = numberText(matches.best->Preload);
  texts.bestPrescaler = numberText(matches.best->Prescaler);
  texts.bestError = format(matches.best->Error, "##0.0##");
  return texts;
}

}  // namespace tarnwick::calc
