#include "calc/adc.h"

#include <benchmark/benchmark.h>

namespace tarnwick {
namespace {

void acquisitionTime(benchmark::State& state) {
  double ohms = 10000;
  for (auto _ : state) {
    benchmark::DoNotOptimize(ohms);
    benchmark::DoNotOptimize(calc::AcquisitionTime(ohms));
  }
}
BENCHMARK(acquisitionTime);

void clockChoice(benchmark::State& state) {
  double Fosc = 20;
  for (auto _ : state) {
    benchmark::DoNotOptimize(Fosc);
    benchmark::DoNotOptimize(calc::ClockChoice(Fosc));
  }
}
BENCHMARK(clockChoice);

void acquisitionTad(benchmark::State& state) {
  double Taq = 50;  // beyond the longest setting: the whole table is tried
  for (auto _ : state) {
    benchmark::DoNotOptimize(Taq);
    benchmark::DoNotOptimize(calc::AcquisitionTad(Taq, 2, 2));
  }
}
BENCHMARK(acquisitionTad);

void adcDefineText(benchmark::State& state) {
  const calc::AdcClock clock = calc::ClockChoice(20);
  double Taq = 842;
  for (auto _ : state) {
    benchmark::DoNotOptimize(Taq);
    benchmark::DoNotOptimize(calc::AdcDefineText(Taq, clock, calc::AdcResolution::Bits10));
  }
}
BENCHMARK(adcDefineText);

}  // namespace
}  // namespace tarnwick
