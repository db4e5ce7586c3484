#pragma once

#include "calc/timer.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick::calc {

// The unit in which a wanted interrupt period or frequency is entered and its matches are shown.
enum class DelayUnit { uSec, mSec, Hz, KHz };

// A wanted period or frequency with its unit.
struct Delay {
  double value = 0;
  DelayUnit unit = DelayUnit::uSec;

  bool operator==(const Delay&) const = default;
};

struct TimerHelperInputs {
  double foscMHz = 0;       // oscillator frequency, MHz
  Delay delay;              // wanted period or frequency
  double reloadCycles = 0;  // instruction cycles spent before the preload is written back
};

// The number of counts of the two timer widths.
inline constexpr int counts8 = 256;
inline constexpr int counts16 = 65536;

// What a search starts from.
struct TimerGoal {
  double Fcy = 0;   // instruction clock, MHz
  double Rt = 0;    // reload time, us
  double Deff = 0;  // the part of the wanted period that the timer itself counts, us
  Delay wanted;     // in the unit in which it is shown
};

// A prescaler and a preload that come close enough to the wanted period or frequency.
struct TimerMatch {
  std::uint16_t Prescaler = 1;  // prescaler ratio
  double Preload = 0;           // value written into the timer, counts
  double Calc = 0;              // achieved period or frequency, in the unit of the goal
  double Error = 0;             // difference of the periods, percent of the achieved one
};

struct TimerMatches {
  std::vector<TimerMatch> found;   // by prescaler
  std::optional<TimerMatch> best;  // the smallest error; of equal ones the smaller prescaler
};

// The limit because of which nothing matches: the wanted period is not longer than the reload time;
// it has more counts than the timer, even with the largest prescaler; no match is close enough.
enum class TimerLimit { None, ReloadTime, Counts, Tolerance };

// What the window shows of one timer width: the columns that list the matches, one line a match,
// each ended by CR LF, and the fields of the best one. A preload of 0 is an empty line.
struct TimerWidthShown {
  std::size_t MatchCount = 0;
  std::optional<int> bestLine;  // of the columns, counted from 0
  TimerLimit exceeded = TimerLimit::None;
  std::string preload;
  std::string prescaler;
  std::string calc;
  std::string error;
  std::string bestPreload;
  std::string bestPrescaler;
  std::string bestError;
};

struct TimerHelperShown {
  std::optional<std::string> delayText;  // what the entry field is to show instead, if any
  DelayUnit unit = DelayUnit::uSec;      // selected afterwards
  TimerWidthShown width8;
  TimerWidthShown width16;
};

// Answers the wanted period or frequency in the unit in which it is shown: from 1000 Hz on in KHz,
// below 1 KHz in Hz. A value that moves is the number that its text reads as, so one just below
// 1 KHz ends as exactly 1 KHz where its digits in Hz round up. Periods stay as they are.
[[nodiscard]] Delay shownDelay(Delay delay);

// Answers what to search for. A frequency or an oscillator of 0 gives a goal that is not finite and
// that nothing matches.
[[nodiscard]] TimerGoal timerGoal(const TimerHelperInputs& inputs);

// Answers every prescaler that lets a timer of `Max` counts (256 or 65536) reach the goal to within
// 5 us, 5 ms, 2 Hz or 2 KHz, bounds excluded, each with the largest preload that does not make the
// period too short. A goal that is not longer than its reload time matches nothing, nor does a
// period beyond the range of a double.
// Source: mid-range family reference manual, Timer0 and Timer1 modules, solved for the preload.
[[nodiscard]] TimerMatches searchTimer(int Max, const TimerGoal& goal);

// Answers the limit that a goal exceeds for a timer of `Max` counts. A goal that is not a
// number exceeds the counts.
[[nodiscard]] TimerLimit exceededLimit(int Max, const TimerGoal& goal, const TimerMatches& matches);

// Answers all that the window shows: the unit and the value moved where they have to, then the
// matches of both widths.
[[nodiscard]] TimerHelperShown showTimerHelper(TimerHelperInputs inputs);

}  // namespace tarnwick::calc
