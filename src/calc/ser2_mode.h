#pragma once

#include <optional>
#include <string_view>

namespace tarnwick::calc {

// How a SERIN2/SEROUT2 pin works, beside its rate.
struct Ser2Options {
  bool open = false;      // open output instead of a driven one
  bool inverted = false;  // inverted instead of true levels
  bool parity = false;    // even or odd parity instead of none
};

// The line that a program with odd parity needs beside the mode, without a line end.
inline constexpr std::string_view oddParityDefine = "DEFINE SER2_ODD 1 ' Set odd parity mode";

// Answers the Mode number of SERIN2 and SEROUT2 for a rate in Bd: the bit time in us less 20,
// rounded down, with 8192 for parity, 16384 for inverted levels and 32768 for an open output added.
// None when that sum is not from 1 to 65534, or the rate is 0 or not finite. The options are added
// first, so a rate too fast for a bit time of its own can still give a number.
// Source: the compiler's manual, SERIN2, "Mode".
[[nodiscard]] std::optional<double> Ser2Mode(double baud, const Ser2Options& options);

}  // namespace tarnwick::calc
