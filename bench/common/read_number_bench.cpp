#include "common/number_text.h"
#include "common/read_number.h"
#include "common/sample_values.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

enum class Texts { whole, typed, full };

// Texts as fields hold them: whole numbers, numbers with at most three decimals, or full ones with
// 15 digits.
std::vector<std::string> sampleTexts(Texts kind) {
  std::vector<std::string> texts;
  for (const double value : bench::sampleValues()) {
    if (kind == Texts::whole) texts.push_back(common::format(value, "0"));
    if (kind == Texts::typed) texts.push_back(common::format(value, "0.###"));
    if (kind == Texts::full) texts.push_back(common::numberText(value));
  }
  return texts;
}

template <typename Reading>
void overTexts(benchmark::State& state, Texts kind, const Reading& reading) {
  const auto texts = sampleTexts(kind);
  std::size_t at = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(reading(texts[at]));
    at = (at + 1) % texts.size();
  }
}

void readNumber(benchmark::State& state, Texts kind) {
  overTexts(state, kind, [](const std::string& text) { return common::readNumber(text); });
}
BENCHMARK_CAPTURE(readNumber, whole, Texts::whole);
BENCHMARK_CAPTURE(readNumber, typed, Texts::typed);
BENCHMARK_CAPTURE(readNumber, full, Texts::full);

// The C library's reading of the same texts, as the yardstick.
void strtod(benchmark::State& state, Texts kind) {
  overTexts(state, kind,
            [](const std::string& text) { return std::strtod(text.c_str(), nullptr); });
}
BENCHMARK_CAPTURE(strtod, whole, Texts::whole);
BENCHMARK_CAPTURE(strtod, typed, Texts::typed);
BENCHMARK_CAPTURE(strtod, full, Texts::full);

}  // namespace
}  // namespace tarnwick
