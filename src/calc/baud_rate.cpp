#include "calc/baud_rate.h"

#include "common/number_text.h"
#include "common/rounding.h"

#include <cmath>

namespace tarnwick::calc {

using common::numberText;

double goalBaud(double rate, bool kBaud) {
  return kBaud ? rate * 1000 : rate;
}

double SpbrgFor(double foscMHz, double baud, double divisor) {
  return common::roundHalfEven(foscMHz * 1000000 / (baud * divisor) - 1);
}

double BaudFor(double foscMHz, double spbrg, double divisor) {
  return common::roundHalfEven(foscMHz * 1000000 / ((spbrg + 1) * divisor));
}

double BaudError(double calc, double goal) {
  return (calc - goal) / goal;
}

std::optional<double> wantedSpbrg(const BaudMode& mode, double foscMHz, double goalBaud) {
  const double spbrg = SpbrgFor(foscMHz, goalBaud, mode.divisor);
  if (!std::isfinite(goalBaud * mode.divisor) || !std::isfinite(spbrg)) return std::nullopt;
  return spbrg;
}

std::optional<BaudRow> baudRow(const BaudMode& mode, double foscMHz, double goalBaud,
                               double spbrg) {
  BaudRow row{.Spbrg = spbrg};
  row.Calc = BaudFor(foscMHz, spbrg, mode.divisor);
  row.Err = BaudError(row.Calc, goalBaud);
  if (!std::isfinite(row.Err * 100)) return std::nullopt;
  return row;
}

std::optional<bool> betterBRGH(const std::optional<BaudRow>& row0,
                               const std::optional<BaudRow>& row1) {
  if (row0 && row1) return !(std::fabs(row0->Err) <= std::fabs(row1->Err));
  if (row0) return false;
  if (row1) return true;
  return std::nullopt;
}

std::string errorText(double err) {
  return common::format(err, "0.0#%");
}

RateTexts rateTexts(const std::optional<BaudRow>& row, bool kBaud) {
  if (!row) return {};
  return {.spbrgh = "",
          .spbrg = numberText(row->Spbrg),
          .calcBaud = kBaud ? numberText(row->Calc / 1000) + " K" : numberText(row->Calc),
          .err = errorText(row->Err)};
}

std::string bitText(bool bit) {
  return bit ? "1" : "0";
}

}  // namespace tarnwick::calc
