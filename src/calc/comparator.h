#pragma once

#include <string>

namespace tarnwick::calc {

// The two ranges of the comparator voltage reference.
enum class VrefRange { Low, High };

// Answers the reference voltage in V of a 4-bit value CVR (0 to 15) from a supply in V: in 24 steps
// from 0 in the low range, in 32 steps from a quarter of the supply in the high one.
// Source: mid-range family reference manual, comparator voltage reference.
[[nodiscard]] double VrefLow(int CVR, double Vdd);
[[nodiscard]] double VrefHigh(int CVR, double Vdd);

// Answers whether a supply in V may be tabulated: any but 0 that does not exceed 5.25.
[[nodiscard]] bool isValidVdd(double Vdd);

// Answer what a range spans, for a supply in V: "1.250 - 3.594 Volt".
[[nodiscard]] std::string lowRangeText(double Vdd);
[[nodiscard]] std::string highRangeText(double Vdd);

// Answers the 16 voltages of a range in ascending order of CVR, for a supply in V, each on a line
// with its line end.
[[nodiscard]] std::string vrefColumn(VrefRange range, double Vdd);

// Answers the 16 values of CVR in binary, each on a line with its line end.
[[nodiscard]] std::string cvrColumn();

}  // namespace tarnwick::calc
