#include "calc/adc.h"

#include "common/lines.h"
#include "common/number_text.h"
#include "common/rounding.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace tarnwick::calc {
namespace {

using common::addLine;

constexpr AdcClock rcClock{"7", "ADCS=111", std::nullopt, "Frc"};

// The clocks derived from the oscillator, fastest first.
constexpr std::array<AdcClock, 6> oscillatorClocks{{
    {"0", "ADCS=000", 2, "Fosc/2"},
    {"4", "ADCS=100", 4, "Fosc/4"},
    {"1", "ADCS=001", 8, "Fosc/8"},
    {"5", "ADCS=101", 16, "Fosc/16"},
    {"2", "ADCS=010", 32, "Fosc/32"},
    {"6", "ADCS=110", 64, "Fosc/64"},
}};

// The automatic acquisition settings; that of 2 Tad is left out on purpose.
constexpr std::array<int, 13> acquisitionSettings{4, 6, 8, 12, 16, 20, 24, 28, 32, 36, 40, 48, 64};

// The blanks that bring a comment mark below the one of the line that ends in the time's digits.
std::string_view padding(double taqUs) {
  constexpr std::string_view longest = "       ";
  if (taqUs >= 1000) return longest;
  if (taqUs >= 100) return longest.substr(1);
  if (taqUs >= 10) return longest.substr(2);
  return longest.substr(3);
}

}  // namespace

double AcquisitionTime(double sourceOhms) {
  const double time = ((sourceOhms + 1000) * 840) / 1000000 + 1;
  return std::ceil(time);
}

AdcClock ClockChoice(double foscMHz) {
  const auto needed = common::toWhole<std::uint8_t>(64 / (40 / foscMHz));
  for (const AdcClock& clock : oscillatorClocks)
    if (needed <= *clock.divisor) return clock;
  return rcClock;
}

int AcquisitionTad(double taqUs, double foscMHz, std::optional<int> divisor) {
  if (!divisor) return 0;
  const double Tad = (1 / foscMHz) * *divisor;
  const double periods = taqUs / Tad;
  if (!(periods > 2)) return 0;
  for (const int setting : acquisitionSettings)
    if (periods <= setting) return setting;
  return acquisitionSettings.back();
}

AdcShown showAdc(const AdcInputs& inputs) {
  const double ohms = inputs.kOhm ? inputs.impedance * 1000 : inputs.impedance;
  AdcShown shown;
  shown.Taq = AcquisitionTime(ohms);
  shown.Clock = ClockChoice(inputs.foscMHz);
  const auto& [code, adcs, divisor, label] = shown.Clock;
  const int Tad = AcquisitionTad(shown.Taq, inputs.foscMHz, divisor);
  shown.clock.append(label).append(" (").append(adcs).append(")");
  shown.acquisitionTad = common::wholeText(Tad) + " Tad";
  if (std::isfinite(shown.Taq)) shown.acquisitionTime = common::numberText(shown.Taq) + " uSec";
  return shown;
}

std::string AdcDefineText(double taqUs, const AdcClock& clock, AdcResolution resolution) {
  const std::string_view pad = padding(taqUs);
  const bool bits8 = resolution == AdcResolution::Bits8;
  std::string text;
  addLine(text, bits8 ? "DEFINE ADC_BITS  8" : "DEFINE ADC_BITS 10", pad,
          "' ADCIN resolution  (Bits)");
  addLine(text, "DEFINE ADC_CLOCK ", clock.code, pad, "' ADC clock source  (", clock.label, ")");
  return text + "DEFINE ADC_SAMPLEUS " + common::numberText(taqUs) + " ' ADC sampling time (uSec)";
}

}  // namespace tarnwick::calc
