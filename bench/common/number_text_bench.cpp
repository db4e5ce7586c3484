#include "common/number_text.h"
#include "common/sample_values.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <cstdio>

namespace tarnwick {
namespace {

// Runs one conversion round and round over the sample values, or over them as whole numbers.
template <typename Conversion>
void overValues(benchmark::State& state, const Conversion& conversion) {
  auto values = bench::sampleValues();
  if (state.range(0) == 0)
    for (double& value : values) value = std::round(value);
  std::size_t at = 0;
  for (auto _ : state) {
    conversion(values[at]);
    at = (at + 1) % values.size();
  }
}

void formatWithPattern(benchmark::State& state, const char* pattern) {
  overValues(state,
             [=](double value) { benchmark::DoNotOptimize(common::format(value, pattern)); });
}
BENCHMARK_CAPTURE(formatWithPattern, threePlaces, "##0.0##")
    ->ArgName("fractions")
    ->DenseRange(0, 1);
BENCHMARK_CAPTURE(formatWithPattern, fourPlaces, "###0.0###")
    ->ArgName("fractions")
    ->DenseRange(0, 1);
BENCHMARK_CAPTURE(formatWithPattern, withUnit, "###0.0## KHz")
    ->ArgName("fractions")
    ->DenseRange(0, 1);
BENCHMARK_CAPTURE(formatWithPattern, percent, "0.0#%")->ArgName("fractions")->DenseRange(0, 1);
BENCHMARK_CAPTURE(formatWithPattern, whole, "#####")->ArgName("fractions")->DenseRange(0, 1);

void numberText(benchmark::State& state) {
  overValues(state, [](double value) { benchmark::DoNotOptimize(common::numberText(value)); });
}
BENCHMARK(numberText)->ArgName("fractions")->DenseRange(0, 1);

// The C library's conversion with the same number of digits, as the yardstick.
void snprintfWith(benchmark::State& state, const char* conversion) {
  overValues(state, [=](double value) {
    std::array<char, 64> text;
    std::snprintf(text.data(), text.size(), conversion, value);
    benchmark::DoNotOptimize(text);
  });
}
BENCHMARK_CAPTURE(snprintfWith, threePlaces, "%.3f")->ArgName("fractions")->DenseRange(0, 1);
BENCHMARK_CAPTURE(snprintfWith, fifteenDigits, "%.15G")->ArgName("fractions")->DenseRange(0, 1);

}  // namespace
}  // namespace tarnwick
