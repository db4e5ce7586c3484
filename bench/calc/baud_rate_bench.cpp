#include "calc/baud_rate.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>

namespace {

using namespace tarnwick;

// One full recalculation of the EUSART: four rows, the best of each group and the final one.
void eusartRecalculation(benchmark::State& state) {
  constexpr std::array<double, 4> goals{300, 9600, 57600, 115200};
  std::size_t at = 0;
  for (auto _ : state) {
    const auto rows = calc::eusartRows(20, goals[at++ % goals.size()]);
    auto best = calc::eusartBest(*rows);
    benchmark::DoNotOptimize(best);
  }
}
BENCHMARK(eusartRecalculation);

}  // namespace
