#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace tarnwick::calc {

// The Timer2 prescaler ratios, in the order in which they are tried.
inline constexpr std::array<std::uint8_t, 3> pwmPrescalers{1, 4, 16};

// What the PWM module can produce at all with one oscillator.
struct PwmLimits {
  double MinHz = 0;   // at PR2 = 255 with prescaler 16
  double MaxKHz = 0;  // at PR2 = 1 with prescaler 1
};

// Timer2 settings that give a wanted PWM frequency.
struct PwmMatch {
  std::uint8_t Prescaler = 1;  // Timer2 prescaler ratio
  double PR2 = 0;              // period register, 0..255
  double FreqKHz = 0;          // achieved PWM frequency, kHz
  double MaxDutyVal = 0;       // duty register value of 100 %: the wanted period in duty counts
  double DutyStep = 0;         // duty cycle of one count of the duty register, percent
  int Resolution = 0;          // bits
};

struct PwmMatches {
  std::array<std::optional<PwmMatch>, 3> bySlot;  // by index of pwmPrescalers, not by rank
  std::uint8_t MatchCount = 0;
  bool aboveRange = false;  // some prescaler would need a PR2 below 0
};

struct PwmDutyValue {
  double Register = 0;  // duty register value, 0..MaxDutyVal from 0 to 100 %
  double Duty = 0;      // achieved duty cycle, percent
};

struct PwmInputs {
  double foscMHz = 0;      // oscillator frequency, MHz
  double frequency = 0;    // wanted PWM frequency: Hz, or kHz with kHz
  bool kHz = false;        // also the unit in which achieved frequencies are shown
  double dutyPercent = 0;  // wanted duty cycle
};

// What the window shows. Columns have one line a match, each ended by CR LF, in slot order.
struct PwmShown {
  PwmMatches matches;  // found last; the duty columns are made of them
  std::string minFreq;
  std::string maxFreq;
  std::string calcFreq;
  std::string prescaler;
  std::string resolution;
  std::string maxDutyVal;
  std::string dutyStep;
  std::string PR2;
  std::string dutyRegister;
  std::string calcDuty;
};

// Answers the lowest and the highest PWM frequency of an oscillator.
// Source: mid-range family reference manual, CCP module, PWM mode:
// period = (PR2 + 1) * 4 * Tosc * prescaler.
[[nodiscard]] PwmLimits PwmRange(double foscHz);

// Answers every prescaler that gives a PWM frequency with a PR2 of 0..255 before it is rounded. The
// maximum duty value belongs to the wanted frequency, so it can differ a little from
// 4 * (PR2 + 1). An input of 0 or one that is not finite matches nothing, nor does a negative one
// beside a positive one. Source: as for PwmRange; duty = register * Tosc * prescaler.
[[nodiscard]] PwmMatches PwmSearch(double foscHz, double frequencyHz);

// Answers the duty register value nearest to a duty cycle of the achieved period, never above the
// match's maximum, and the duty cycle that it gives. Results are not finite for an oscillator of 0
// or beyond the range of a double.
[[nodiscard]] PwmDutyValue PwmDuty(const PwmMatch& match, double dutyPercent, double foscHz);

// Answers the PWM resolution in bits, 1..10, by the maximum duty register value. The steps are
// those of a fixed table without one at 128: 65 to 256 are all 8 bits (docs/ON_PURPOSE.md).
[[nodiscard]] int PwmResolution(double maxDutyVal);

// Answers all that the window shows: the reachable range, the matches and their duty columns.
[[nodiscard]] PwmShown showPwm(const PwmInputs& inputs);

// Answers what is shown when the duty cycle alone changes: the duty columns of the matches found
// last. An oscillator of 0, for which no duty can be stated, leaves them as they were.
[[nodiscard]] PwmShown next(PwmShown shown, const PwmInputs& inputs);

}  // namespace tarnwick::calc
