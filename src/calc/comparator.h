#pragma once

#include <string>

namespace tarnwick::calc {

// The two ranges of the comparator voltage reference.
enum class VrefRange { Low = 1, High = 2 };

struct ComparatorInputs {
  double vdd = 0;  // supply, V
  VrefRange range = VrefRange::Low;
};

// What the window shows.
struct ComparatorShown {
  std::string lowRange;     // what the range spans: "0.000 - 3.125 Volt"
  std::string highRange;    // "1.250 - 3.594 Volt"
  std::string vref;         // the 16 voltages in ascending order of CVR, each on a line
  bool invalidVdd = false;  // the texts are of the supply before: the last one was refused
};

// Answers the reference voltage in V of a 4-bit value CVR (0 to 15) from a supply in V: in 24 steps
// from 0 in the low range, in 32 steps from a quarter of the supply in the high one.
// Source: mid-range family reference manual, comparator voltage reference.
[[nodiscard]] double VrefLow(int CVR, double vdd);
[[nodiscard]] double VrefHigh(int CVR, double vdd);

// Answers all that the window shows. A voltage that is not finite is empty text.
[[nodiscard]] ComparatorShown showComparator(const ComparatorInputs& inputs);

// Answers what is shown once a supply was typed: 0 and any above 5.25 V leave the texts as they
// were.
[[nodiscard]] ComparatorShown next(ComparatorShown shown, const ComparatorInputs& inputs);

// Answers the 16 values of CVR in binary, each on a line with its line end.
[[nodiscard]] std::string cvrColumn();

}  // namespace tarnwick::calc
