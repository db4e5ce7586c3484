#include "calc/comparator.h"

#include "common/lines.h"
#include "common/number_text.h"

#include <bitset>

namespace tarnwick::calc {
namespace {

using common::addLine;
using common::format;

constexpr int lastCVR = 15;
constexpr double maxVdd = 5.25;  // V

}  // namespace

double VrefLow(int CVR, double vdd) {
  return (CVR / 24.0) * vdd;
}

double VrefHigh(int CVR, double vdd) {
  return vdd * 0.25 + (CVR / 32.0) * vdd;
}

ComparatorShown showComparator(const ComparatorInputs& inputs) {
  const auto& [vdd, range] = inputs;
  ComparatorShown shown;
  shown.lowRange = "0.000 - " + format(VrefLow(lastCVR, vdd), "0.000") + " Volt";
  shown.highRange =
      format(VrefHigh(0, vdd), "0.000") + " - " + format(VrefHigh(lastCVR, vdd), "0.000") + " Volt";
  for (int CVR = 0; CVR <= lastCVR; ++CVR)
    addLine(shown.vref,
            format(range == VrefRange::Low ? VrefLow(CVR, vdd) : VrefHigh(CVR, vdd), "##0.000"));
  return shown;
}

ComparatorShown next(ComparatorShown shown, const ComparatorInputs& inputs) {
  shown.invalidVdd = inputs.vdd == 0 || !(inputs.vdd <= maxVdd);
  return shown.invalidVdd ? shown : showComparator(inputs);
}

std::string cvrColumn() {
  std::string column;
  for (unsigned CVR = 0; CVR <= lastCVR; ++CVR) addLine(column, std::bitset<4>(CVR).to_string());
  return column;
}

}  // namespace tarnwick::calc
