#pragma once

namespace tarnwick::calc {

// What the overflow rate of a PIC timer depends on.
struct TimerInputs {
  double foscMHz = 0;       // oscillator frequency, MHz
  bool is8Bit = true;       // 8-bit timer (256 counts); otherwise 16-bit (65536 counts)
  int prescale = 1;         // prescaler ratio 1, 2, 4, ... 256
  double preload = 0;       // value written into the timer, counts
  double reloadCycles = 0;  // instruction cycles spent before the preload is written back
};

struct TimerResult {
  double Fcy = 0;      // instruction clock, MHz
  double Tcy = 0;      // one instruction cycle, us
  double Period = 0;   // time from interrupt to interrupt, us
  double FreqKHz = 0;  // interrupt frequency, kHz
};

// Answers how often the timer overflows. The timer counts instruction cycles (Fosc / 4) through its
// prescaler from the preload to its overflow; the reload cycles are added once a period, not scaled
// by the prescaler, since writing the timer happens in instruction cycles. An oscillator of 0 or a
// period of 0 gives results that are not finite; nothing else is refused.
// Source: mid-range family reference manual, Timer0 and Timer1 modules.
[[nodiscard]] TimerResult timerResult(const TimerInputs& inputs);

}  // namespace tarnwick::calc
