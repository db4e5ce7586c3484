#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tarnwick::calc {

// The prescaler ratios of the timers, in the order in which they are offered and tried.
inline constexpr std::array<std::uint16_t, 9> timerPrescalers{1, 2, 4, 8, 16, 32, 64, 128, 256};

// What the overflow rate of a PIC timer depends on.
struct TimerInputs {
  double foscMHz = 0;       // oscillator frequency, MHz
  bool is8Bit = true;       // 8-bit timer (256 counts); otherwise 16-bit (65536 counts)
  int prescale = 1;         // one of timerPrescalers
  double preload = 0;       // value written into the timer, counts
  double reloadCycles = 0;  // instruction cycles spent before the preload is written back
};

struct TimerResult {
  double Fcy = 0;      // instruction clock, MHz
  double Tcy = 0;      // one instruction cycle, us
  double Period = 0;   // time from interrupt to interrupt, us
  double FreqKHz = 0;  // interrupt frequency, kHz
};

// What the window shows, each with its unit.
struct TimerShown {
  std::string instructionClock;  // Fosc / 4, although its label reads "Fosc :"
  std::string instructionCycle;
  std::string period;
  std::string frequency;
};

// The positions of the preload slider: the preload less what position 0 stands for.
struct PreloadSlider {
  int minimum = 0;
  int maximum = 0;
  int preloadAtZero = 0;
};

// Answers how often the timer overflows. The timer counts instruction cycles (Fosc / 4) through its
// prescaler from the preload to its overflow; the reload cycles are added once a period, not scaled
// by the prescaler, since writing the timer happens in instruction cycles. Nothing is refused: an
// oscillator of 0, a period of 0 and what exceeds a double give results that are not finite.
// Source: mid-range family reference manual, Timer0 and Timer1 modules.
[[nodiscard]] TimerResult timerResult(const TimerInputs& inputs);

// Answers how the result is shown: the period in uSec below 1000 us, in mSec from there on; the
// frequency in Hz up to 1 kHz, in KHz above. What is not finite is empty text.
[[nodiscard]] TimerShown showTimer(const TimerInputs& inputs);

// Answers the slider that covers every preload of a timer width.
[[nodiscard]] PreloadSlider preloadSlider(bool is8Bit);

// Answers the position for a preload (counts), rounded half to even; it may lie outside the slider.
[[nodiscard]] int preloadPosition(double preload, bool is8Bit);

// Answers the preload for which a position of the slider stands.
[[nodiscard]] std::string preloadText(int position, bool is8Bit);

}  // namespace tarnwick::calc
