#include "calc/comparator.h"

#include <benchmark/benchmark.h>

namespace tarnwick {
namespace {

template <double (*voltage)(int CVR, double Vdd)>
void vref(benchmark::State& state) {
  double Vdd = 5;
  int CVR = 7;
  for (auto _ : state) {
    benchmark::DoNotOptimize(Vdd);
    benchmark::DoNotOptimize(CVR);
    benchmark::DoNotOptimize(voltage(CVR, Vdd));
  }
}
BENCHMARK(vref<calc::VrefLow>);
BENCHMARK(vref<calc::VrefHigh>);

void vrefColumn(benchmark::State& state) {
  double Vdd = 5;
  for (auto _ : state) {
    benchmark::DoNotOptimize(Vdd);
    benchmark::DoNotOptimize(calc::vrefColumn(calc::VrefRange::High, Vdd));
  }
}
BENCHMARK(vrefColumn);

}  // namespace
}  // namespace tarnwick
