#include "calc/timer_helper.h"

#include "common/lines.h"
#include "common/number_text.h"
#include "common/read_number.h"

#include <cmath>
#include <string_view>
#include <utility>

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

  const auto& [wanted, unit] = goal.wanted;
  const double calc = inUnit(achieved, unit);
  const double tolerance = toleranceIn(unit);
  if (!(wanted + tolerance > calc && wanted - tolerance < calc)) return std::nullopt;
  return TimerMatch{.Prescaler = P, .Preload = preload, .Calc = calc, .Error = error};
}

// The number that a value reads as once its text stands in the entry field.
double asEntered(double value) {
  return common::readNumber(numberText(value));
}

TimerWidthShown showWidth(int Max, const TimerGoal& goal) {
  const TimerMatches matches = searchTimer(Max, goal);
  TimerWidthShown shown;
  shown.MatchCount = matches.found.size();
  shown.exceeded = exceededLimit(Max, goal, matches);
  for (int line = 0; const TimerMatch& match : matches.found) {
    if (match.Prescaler == matches.best->Prescaler) shown.bestLine = line;
    ++line;
    addLine(shown.preload, format(match.Preload, "#####"));
    addLine(shown.prescaler, "1:", numberText(match.Prescaler));
    addLine(shown.calc, formatWithUnit(match.Calc, "####0.0##", unitText(goal.wanted.unit)));
    addLine(shown.error, formatWithUnit(match.Error, "##0.0##", " %"));
  }
  if (!matches.best) return shown;
  shown.bestPreload = numberText(matches.best->Preload);
  shown.bestPrescaler = numberText(matches.best->Prescaler);
  shown.bestError = format(matches.best->Error, "##0.0##");
  return shown;
}

}  // namespace

Delay shownDelay(Delay delay) {
  if (delay.unit == DelayUnit::KHz && !(delay.value >= 1))
    delay = {asEntered(delay.value * 1000), DelayUnit::Hz};
  if (delay.unit == DelayUnit::Hz && !(delay.value < 1000))
    delay = {asEntered(delay.value / 1000), DelayUnit::KHz};
  return delay;
}

TimerGoal timerGoal(const TimerHelperInputs& inputs) {
  TimerGoal goal;
  goal.Fcy = inputs.foscMHz / 4;
  goal.Rt = inputs.reloadCycles * (1 / goal.Fcy);
  goal.Deff = periodOf(inputs.delay) - goal.Rt;
  goal.wanted = inputs.delay;
  return goal;
}

TimerMatches searchTimer(int Max, const TimerGoal& goal) {
  TimerMatches matches;
  for (const std::uint16_t P : timerPrescalers) {
    const auto match = matchFor(Max, goal, P);
    if (!match) continue;
    matches.found.push_back(*match);
    if (!matches.best || match->Error < matches.best->Error) matches.best = match;
  }
  return matches;
}

TimerLimit exceededLimit(int Max, const TimerGoal& goal, const TimerMatches& matches) {
  if (matches.best) return TimerLimit::None;
  if (goal.Deff <= 0) return TimerLimit::ReloadTime;
  const double counts = goal.Deff * goal.Fcy / timerPrescalers.back();
  return counts < Max ? TimerLimit::Tolerance : TimerLimit::Counts;
}

TimerHelperShown showTimerHelper(TimerHelperInputs inputs) {
  const Delay entered = std::exchange(inputs.delay, shownDelay(inputs.delay));
  TimerHelperShown shown;
  shown.unit = inputs.delay.unit;
  if (inputs.delay != entered) shown.delayText = numberText(inputs.delay.value);
  const TimerGoal goal = timerGoal(inputs);
  shown.width8 = showWidth(counts8, goal);
  shown.width16 = showWidth(counts16, goal);
  return shown;
}

}  // namespace tarnwick::calc
