#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <limits>
#include <string>
#include <string_view>

// What the fuzz targets share: values made of the fuzzer's bytes, and the check of a rule.
namespace tarnwick::fuzz {

// Ends the run with the rule's text where it does not hold; the fuzzer then keeps the input.
inline void require(bool holds, const char* rule) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", rule);
  std::abort();
}

// Any number at all, not finite ones included; every other time one that users would type.
inline double anyNumber(FuzzedDataProvider& input) {
  switch (input.ConsumeIntegralInRange<int>(0, 5)) {
    case 0:
      return std::bit_cast<double>(input.ConsumeIntegral<std::uint64_t>());
    case 1:
      return input.PickValueInArray<double>(
          {0.0, -0.0, 1E-307, 1E307, std::numeric_limits<double>::denorm_min(),
           std::numeric_limits<double>::max(), std::numeric_limits<double>::infinity(),
           std::numeric_limits<double>::quiet_NaN(), 0.5, 40, 115200, 65535.5});
    case 2:
      return input.ConsumeFloatingPointInRange<double>(-100, 100);
    case 3:
      return input.ConsumeIntegralInRange<int>(0, 1'000'000) / 1000.0;
    default:
      return input.ConsumeIntegralInRange<int>(0, 1'000'000);
  }
}

// A finite number, as an entry field gives.
inline double enteredNumber(FuzzedDataProvider& input) {
  const double number = anyNumber(input);
  return std::isfinite(number) ? number : 0;
}

// A one-line text as an entry field may show: printable, UTF-8, and without the letters that "inf"
// and "nan" have in common.
inline std::string fieldText(FuzzedDataProvider& input, std::size_t maximum = 24) {
  std::string text;
  for (const char byte : input.ConsumeRandomLengthString(maximum)) {
    const auto code = static_cast<unsigned char>(byte);
    if (code >= 0xF0)
      text += "\u00B5";
    else if (code % 128 >= ' ' && code % 128 != 127 && (code | 32) % 128 != 'n')
      text += static_cast<char>(code % 128);
    else
      text += static_cast<char>('0' + code % 10);
  }
  return text;
}

// Makes an input of the fuzzer's bytes and hands it to the check that they choose.
template <std::size_t count>
void runOneOf(const std::array<void (*)(FuzzedDataProvider&), count>& checks,
              const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  checks[input.ConsumeIntegralInRange<std::size_t>(0, count - 1)](input);
}

}  // namespace tarnwick::fuzz
