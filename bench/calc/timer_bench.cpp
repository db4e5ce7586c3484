#include "calc/timer.h"

#include <benchmark/benchmark.h>

namespace tarnwick {
namespace {

void timerResult(benchmark::State& state) {
  calc::TimerInputs inputs{.foscMHz = 4, .reloadCycles = 7};
  for (auto _ : state) {
    benchmark::DoNotOptimize(inputs);
    benchmark::DoNotOptimize(calc::timerResult(inputs));
  }
}
BENCHMARK(timerResult);

}  // namespace
}  // namespace tarnwick
