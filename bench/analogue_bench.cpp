#include "calc/adc.h"
#include "calc/comparator.h"

#include <benchmark/benchmark.h>

namespace tarnwick::calc {
namespace {

// Inputs that change from call to call, so that nothing is computed once and for all.
template <class Calculation>
void analogue(benchmark::State& state, Calculation calculation) {
  double step = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(calculation(step));
    step = step < 50 ? step + 0.37 : 0.5;
  }
}

BENCHMARK_CAPTURE(analogue, AcquisitionTime,
                  [](double step) { return AcquisitionTime(step * 999); });
BENCHMARK_CAPTURE(analogue, ClockChoice, [](double step) { return ClockChoice(step); });
BENCHMARK_CAPTURE(analogue, AcquisitionTad,
                  [](double step) { return AcquisitionTad(11, step, 16); });
BENCHMARK_CAPTURE(analogue, AdcDefineText, [](double step) {
  return AdcDefineText(AcquisitionTime(step * 999), ClockChoice(20), AdcResolution::Bits10);
});
BENCHMARK_CAPTURE(analogue, VrefLow, [](double step) { return VrefLow(7, step); });
BENCHMARK_CAPTURE(analogue, VrefHigh, [](double step) { return VrefHigh(7, step); });
BENCHMARK_CAPTURE(analogue, vrefColumn,
                  [](double step) { return vrefColumn(VrefRange::High, step); });

}  // namespace
}  // namespace tarnwick::calc
