#include "calc/baud_rate.h"

#include "common/number_text.h"
#include "common/read_number.h"
#include "common/rounding.h"

#include <cmath>
#include <cstddef>

namespace tarnwick::calc {
namespace {

using MaybeRow = std::optional<BaudRow>;

// The unlimited register value of a mode; none when a step of its calculation is not finite.
std::optional<double> wantedSpbrg(const BaudMode& mode, double foscMHz, double goalBaud) {
  const double spbrg = SpbrgFor(foscMHz, goalBaud, mode.divisor);
  if (!std::isfinite(goalBaud * mode.divisor) || !std::isfinite(spbrg)) return std::nullopt;
  return spbrg;
}

// The row of a register value; none when its error, also in percent, is not finite.
MaybeRow rowOf(const BaudMode& mode, double foscMHz, double goalBaud, double spbrg) {
  BaudRow row{.Spbrg = spbrg};
  row.Calc = BaudFor(foscMHz, spbrg, mode.divisor);
  row.Err = BaudError(row.Calc, goalBaud);
  if (!std::isfinite(row.Err * 100)) return std::nullopt;
  return row;
}

MaybeRow usartRow(const BaudMode& mode, double foscMHz, double goalBaud) {
  auto spbrg = wantedSpbrg(mode, foscMHz, goalBaud);
  if (!spbrg) return std::nullopt;
  if (*spbrg > mode.maxSpbrg) spbrg = mode.maxSpbrg;
  if (*spbrg < 0) spbrg = 0;
  return rowOf(mode, foscMHz, goalBaud, *spbrg);
}

std::optional<bool> betterBRGH(const MaybeRow& row0, const MaybeRow& row1) {
  if (row0 && row1) return !(std::fabs(row0->Err) <= std::fabs(row1->Err));
  if (row0) return false;
  if (row1) return true;
  return std::nullopt;
}

// The size of a group's best error, or one that a group without a usable row loses with.
double errorOf(const MaybeRow& row0, const MaybeRow& row1, std::optional<bool> bestBRGH) {
  constexpr double noRow = 666666;
  if (!bestBRGH) return noRow;
  return std::fabs((*bestBRGH ? row1 : row0)->Err);
}

}  // namespace

double SpbrgFor(double foscMHz, double baud, double divisor) {
  return common::roundHalfEven(foscMHz * 1000000 / (baud * divisor) - 1);
}

double BaudFor(double foscMHz, double spbrg, double divisor) {
  return common::roundHalfEven(foscMHz * 1000000 / ((spbrg + 1) * divisor));
}

double BaudError(double calc, double goal) {
  return (calc - goal) / goal;
}

UsartRows usartRows(double foscMHz, double goalBaud) {
  return {usartRow(usartModes[0], foscMHz, goalBaud), usartRow(usartModes[1], foscMHz, goalBaud)};
}

std::optional<EusartRows> eusartRows(double foscMHz, double goalBaud) {
  EusartRows rows;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const BaudMode& mode = eusartModes[i];
    auto spbrg = wantedSpbrg(mode, foscMHz, goalBaud);
    if (!spbrg) return std::nullopt;
    if (*spbrg > mode.maxSpbrg) spbrg = mode.maxSpbrg;
    if (!(*spbrg > 0)) continue;
    rows[i] = rowOf(mode, foscMHz, goalBaud, *spbrg);
    if (!rows[i]) return std::nullopt;
    rows[i]->Err = common::readNumber(common::numberText(rows[i]->Err));
  }
  return rows;
}

std::optional<bool> usartBest(const UsartRows& rows) {
  return betterBRGH(rows[0], rows[1]);
}

std::optional<EusartBest> eusartBest(const EusartRows& rows) {
  const auto best = betterBRGH(rows[0], rows[1]);
  const auto best16 = betterBRGH(rows[2], rows[3]);
  if (!best && !best16) return std::nullopt;
  const bool brg16 = !(errorOf(rows[0], rows[1], best) < errorOf(rows[2], rows[3], best16));
  return EusartBest{.BestBRGH = best, .BestBRGH16 = best16, .FinalBRG16 = brg16};
}

SpbrgBytes spbrgBytes(double spbrg) {
  const int value = common::toWhole<int>(spbrg);
  return {.low = value & 255, .high = (value & ~255) / 256};
}

}  // namespace tarnwick::calc
