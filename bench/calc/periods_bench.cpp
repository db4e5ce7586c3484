// How long the searches of the PWM calculator and the Timer helper take, without their texts.
#include "calc/pwm.h"
#include "calc/timer_search.h"

#include <benchmark/benchmark.h>

namespace tarnwick::calc {
namespace {

// All three prescalers match, so every duty is computed.
void BM_PwmSearchWithDuty(benchmark::State& state) {
  double Fosc = 20e6;
  double F = 25e3;
  for (auto _ : state) {
    benchmark::DoNotOptimize(Fosc);
    benchmark::DoNotOptimize(F);
    const PwmMatches matches = PwmSearch(Fosc, F);
    for (const auto& match : matches.bySlot)
      if (match) benchmark::DoNotOptimize(PwmDuty(*match, 50, Fosc));
    benchmark::DoNotOptimize(matches);
  }
}
BENCHMARK(BM_PwmSearchWithDuty);

// Both widths, with seven matches in the one and nine in the other.
void BM_TimerHelperSearch(benchmark::State& state) {
  double value = 1;
  for (auto _ : state) {
    benchmark::DoNotOptimize(value);
    const TimerGoal goal = timerGoal(4, 7, shownDelay(value, DelayUnit::mSec));
    benchmark::DoNotOptimize(searchTimer(256, goal));
    benchmark::DoNotOptimize(searchTimer(65536, goal));
  }
}
BENCHMARK(BM_TimerHelperSearch);

}  // namespace
}  // namespace tarnwick::calc
