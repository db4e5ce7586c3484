#include "calc/usart.h"

#include <cstddef>

namespace tarnwick::calc {
namespace {

std::optional<BaudRow> usartRow(const BaudMode& mode, double foscMHz, double goalBaud) {
  auto spbrg = wantedSpbrg(mode, foscMHz, goalBaud);
  if (!spbrg) return std::nullopt;
  if (*spbrg > mode.maxSpbrg) spbrg = mode.maxSpbrg;
  if (*spbrg < 0) spbrg = 0;
  return baudRow(mode, foscMHz, goalBaud, *spbrg);
}

}  // namespace

UsartRows usartRows(double foscMHz, double goalBaud) {
  return {usartRow(usartModes[0], foscMHz, goalBaud), usartRow(usartModes[1], foscMHz, goalBaud)};
}

UsartShown showUsart(const BaudInputs& inputs) {
  const UsartRows rows = usartRows(inputs.foscMHz, goalBaud(inputs.rate, inputs.kBaud));
  UsartShown shown;
  for (std::size_t i = 0; i < rows.size(); ++i) shown.rows[i] = rateTexts(rows[i], inputs.kBaud);
  const auto brgh = betterBRGH(rows[0], rows[1]);
  if (!brgh) return shown;
  shown.best = shown.rows[*brgh ? 1 : 0];
  shown.bestBRGH = bitText(*brgh);
  shown.match = UsartMatch{.BestBRGH = *brgh, .row = *rows[*brgh ? 1 : 0]};
  return shown;
}

}  // namespace tarnwick::calc
