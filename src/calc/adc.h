#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick::calc {

// One setting of the A/D conversion clock.
struct AdcClock {
  std::string_view code;       // what PBP's ADC_CLOCK takes
  std::string_view adcs;       // the ADCS bits of the register
  std::optional<int> divisor;  // oscillator periods in one Tad; none for the RC clock
  std::string_view label;
};

enum class AdcResolution { Bits8 = 0, Bits10 = 1 };

struct AdcInputs {
  double foscMHz = 0;    // oscillator frequency, MHz
  double impedance = 0;  // of the source: ohms, or kilohms with kOhm
  bool kOhm = false;
};

// What the window shows, and what a copy is made of afterwards.
struct AdcShown {
  std::string clock;  // "Fosc/32 (ADCS=010)"
  std::string acquisitionTad;
  std::string acquisitionTime;
  double Taq = 0;  // minimum acquisition time, us
  AdcClock Clock;
};

// Answers the minimum acquisition time in whole us, rounded up, for a source impedance in ohms: the
// hold capacitor charges through the source and 1000 ohms inside the chip, which takes 840 ps an
// ohm, and the amplifier settles in 1 us. No impedance is refused: a negative one can give a time
// below 0, one beyond 2E+305 an infinite time.
// Source: mid-range family reference manual, A/D acquisition requirements.
[[nodiscard]] double AcquisitionTime(double sourceOhms);

// Answers the fastest conversion clock that leaves Tad at 1.6 us or more for an oscillator in MHz.
// The divisor needed, 64 / (40 / Fosc), is first rounded half to even into a byte, so that some
// frequencies get a Tad slightly below that. 40.3125 MHz is the last that an oscillator clock
// serves; the RC clock follows. 0 and negative frequencies get the smallest divisor.
// Source: mid-range family reference manual, selecting the A/D conversion clock.
[[nodiscard]] AdcClock ClockChoice(double foscMHz);

// Answers the automatic acquisition setting in Tad that covers an acquisition time in us, for an
// oscillator in MHz and its divisor. Up to 2 Tad no automatic acquisition is set (0), 64 is also
// the answer for all that no setting covers; without a divisor (RC clock) the answer is 0.
// Source: enhanced A/D converter's data sheet, ACQT bits; the setting of 2 Tad is left out
// (docs/ON_PURPOSE.md).
[[nodiscard]] int AcquisitionTad(double taqUs, double foscMHz, std::optional<int> divisor);

// Answers all that the window shows. A time that is not finite is empty text.
[[nodiscard]] AdcShown showAdc(const AdcInputs& inputs);

// Answers the three DEFINE lines for an acquisition time in us, without a line end after the last.
// The comment marks stand in one column for times from 0 to 9999 us. A time that is not finite
// leaves its number out.
// Source: the compiler's manual, ADCIN.
[[nodiscard]] std::string AdcDefineText(double taqUs, const AdcClock& clock,
                                        AdcResolution resolution);

}  // namespace tarnwick::calc
