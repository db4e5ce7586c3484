#include "calc/comparator.h"

#include "common/number_text.h"

namespace tarnwick::calc {
namespace {

constexpr int lastCVR = 15;
constexpr double maxVdd = 5.25;  // V

}  // namespace

double VrefLow(int CVR, double Vdd) {
  return (CVR / 24.0) * Vdd;
}

double VrefHigh(int CVR, double Vdd) {
  return Vdd * 0.25 + (CVR / 32.0) * Vdd;
}

bool isValidVdd(double Vdd) {
  return Vdd != 0 && Vdd <= maxVdd;
}

std::string lowRangeText(double Vdd) {
  return "0.000 - " + common::format(VrefLow(lastCVR, Vdd), "0.000") + " Volt";
}

std::string highRangeText(double Vdd) {
  return common::format(VrefHigh(0, Vdd), "0.000") + " - " +
         common::format(VrefHigh(lastCVR, Vdd), "0.000") + " Volt";
}

std::string vrefColumn(VrefRange range, double Vdd) {
  std::string column;
  column.reserve(std::size_t{16} * 8);
  for (int CVR = 0; CVR <= lastCVR; ++CVR) {
    const double voltage = range == VrefRange::Low ? VrefLow(CVR, Vdd) : VrefHigh(CVR, Vdd);
    column.append(common::format(voltage, "##0.000")).append(common::lineEnd);
  }
  return column;
}

std::string cvrColumn() {
  std::string column;
  for (int CVR = 0; CVR <= lastCVR; ++CVR) {
    for (int bit = 3; bit >= 0; --bit) column.push_back((CVR >> bit) % 2 == 0 ? '0' : '1');
    column.append(common::lineEnd);
  }
  return column;
}

}  // namespace tarnwick::calc
