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
  double Register = 0;  // duty register value, 0..MaxDutyVal
  double Duty = 0;      // achieved duty cycle, percent
};

// The columns that list the matches: one line a match, each ended by CR LF, in slot order.
struct PwmMatchTexts {
  std::string calcFreq;
  std::string prescaler;
  std::string resolution;
  std::string maxDutyVal;
  std::string dutyStep;
  std::string PR2;
};

struct PwmDutyTexts {
  std::string dutyRegister;
  std::string calcDuty;
};

struct PwmLimitTexts {
  std::string min;
  std::string max;
};

// Answers the lowest and the highest PWM frequency of an oscillator of `Fosc` Hz.
// Source: mid-range family reference manual, CCP module, PWM mode:
// period = (PR2 + 1) * 4 * Tosc * prescaler.
[[nodiscard]] PwmLimits PwmRange(double Fosc);

// Answers every prescaler that gives a PWM frequency of `F` Hz with a PR2 of 0..255 before it is
// rounded, at an oscillator of `Fosc` Hz. The maximum duty value belongs to the wanted frequency,
// so it can differ a little from 4 * (PR2 + 1). An input of 0 or one that is not
// finite matches nothing, nor does a negative one beside a positive one. Source: as for PwmRange;
// duty = register * Tosc * prescaler.
[[nodiscard]] PwmMatches PwmSearch(double Fosc, double F);

// Answers the duty register value nearest to a duty cycle of `D` percent of the achieved period,
// never above the match's maximum, and the duty cycle that it gives, at an oscillator of `Fosc` Hz.
// Results are not finite for an `Fosc` of 0 or beyond the range of a double.
[[nodiscard]] PwmDutyValue PwmDuty(const PwmMatch& match, double D, double Fosc);

// Answers the PWM resolution in bits, 1..10, by the maximum duty register value. The steps are
// those of a fixed table without one at 128: 65 to 256 are all 8 bits.
[[nodiscard]] int PwmResolution(double maxDutyVal);

// Answers how the range is shown: in Hz, KHz or MHz.
[[nodiscard]] PwmLimitTexts pwmLimitTexts(const PwmLimits& limits);

// Answers the columns of the matches, the achieved frequency in KHz or else in Hz.
[[nodiscard]] PwmMatchTexts pwmMatchTexts(const PwmMatches& matches, bool inKHz);

// Answers the duty columns of the matches for a duty cycle of `D` percent at an oscillator of
// `Fosc` Hz, or nothing when `Fosc` is 0 and no duty can be stated.
[[nodiscard]] std::optional<PwmDutyTexts> pwmDutyTexts(const PwmMatches& matches, double D,
                                                       double Fosc);

}  // namespace tarnwick::calc
