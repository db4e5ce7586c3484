#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace tarnwick::calc {

// The prescaler ratios of the timers, in the order in which they are tried.
inline constexpr std::array<std::uint16_t, 9> timerPrescalers{1, 2, 4, 8, 16, 32, 64, 128, 256};

// The unit in which a wanted interrupt period or frequency is entered and its matches are shown.
enum class DelayUnit { uSec, mSec, Hz, KHz };

// A wanted period or frequency with its unit.
struct Delay {
  double value = 0;
  DelayUnit unit = DelayUnit::uSec;
  std::optional<std::string> text;  // what the entry field has to show instead, if the unit moved
};

// What a search starts from.
struct TimerGoal {
  double Fcy = 0;     // instruction clock, MHz
  double Rt = 0;      // reload time, us
  double Deff = 0;    // the part of the wanted period that the timer itself counts, us
  double wanted = 0;  // the wanted period or frequency as entered, in its unit
  DelayUnit unit = DelayUnit::uSec;
};

// A prescaler and a preload that come close enough to the wanted period or frequency.
struct TimerMatch {
  std::uint16_t Prescaler = 1;  // prescaler ratio
  double Preload = 0;           // value written into the timer, counts
  double Calc = 0;              // achieved period or frequency, in the unit of the goal
  double Error = 0;             // difference of the periods, percent of the achieved one
};

struct TimerMatches {
  std::array<TimerMatch, timerPrescalers.size()> found;  // the first MatchCount, by prescaler
  std::uint8_t MatchCount = 0;
  std::optional<TimerMatch> best;  // the smallest error; of equal ones the smaller prescaler

  [[nodiscard]] std::span<const TimerMatch> list() const { return {found.data(), MatchCount}; }
};

// The columns that list the matches of one timer width, one line a match, each ended by CR LF,
// and the fields that show the best one.
struct TimerMatchTexts {
  std::string preload;
  std::string prescaler;
  std::string calc;
  std::string error;
  std::string bestPreload;
  std::string bestPrescaler;
  std::string bestError;
};

// Answers the wanted period or frequency in the unit in which it is shown: from 1000 Hz on in KHz,
// below 1 KHz in Hz. A value that moves is the number that its new text reads as, so one just below
// 1 KHz ends as exactly 1 KHz where its digits in Hz round up. Periods stay as they are.
[[nodiscard]] Delay shownDelay(double value, DelayUnit unit);

// Answers what to search for at an oscillator of `foscMHz` MHz with `reloadCycles` instruction
// cycles spent on writing the preload back. A frequency or an oscillator of 0 gives a goal that is
// not finite and that nothing matches.
[[nodiscard]] TimerGoal timerGoal(double foscMHz, double reloadCycles, const Delay& delay);

// Answers every prescaler that lets a timer of `Max` counts (256 or 65536) reach the goal to within
// 5 us, 5 ms, 2 Hz or 2 KHz, bounds excluded, each with the largest preload that does not make the
// period too short. A goal that is not longer than its reload time matches nothing, nor does a
// period beyond the range of a double.
// Source: mid-range family reference manual, Timer0 and Timer1 modules, solved for the preload.
[[nodiscard]] TimerMatches searchTimer(int Max, const TimerGoal& goal);

// Answers how the matches are shown. A preload of 0 is an empty line of its column.
[[nodiscard]] TimerMatchTexts timerMatchTexts(const TimerMatches& matches, DelayUnit unit);

}  // namespace tarnwick::calc
