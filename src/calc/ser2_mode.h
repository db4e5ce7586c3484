#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick::calc {

enum class Ser2Parity { Odd = 0, None = 1, Even = 2 };

struct Ser2Inputs {
  double rate = 0;  // wanted rate: Bd, or kBd with kBaud
  bool kBaud = false;
  bool open = false;      // open output instead of a driven one
  bool inverted = false;  // inverted instead of true levels
  Ser2Parity parity = Ser2Parity::None;
};

// What the window shows.
struct Ser2Shown {
  std::string mode;        // empty where no mode fits
  bool offersOdd = false;  // the DEFINE line of odd parity can be copied
};

// The line that a program with odd parity needs beside the mode, without a line end.
inline constexpr std::string_view oddParityDefine = "DEFINE SER2_ODD 1 ' Set odd parity mode";

// Answers the Mode number of SERIN2 and SEROUT2: the bit time in us less 20, rounded down, with
// 8192 for parity, 16384 for inverted levels and 32768 for an open output added. None when that sum
// is not from 1 to 65534, or the rate is 0 or not finite. The options are added first, so a rate
// too fast for a bit time of its own can still give a number. Source: the compiler's manual,
// SERIN2, "Mode".
[[nodiscard]] std::optional<double> Ser2Mode(const Ser2Inputs& inputs);

// Answers all that the window shows; where no mode fits, the offer stays as it was.
[[nodiscard]] Ser2Shown next(Ser2Shown shown, const Ser2Inputs& inputs);

}  // namespace tarnwick::calc
