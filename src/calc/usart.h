#pragma once

#include "calc/baud_rate.h"

#include <array>
#include <optional>
#include <string>

namespace tarnwick::calc {

inline constexpr std::array<BaudMode, 2> usartModes{{{64, 255}, {16, 255}}};

using UsartRows = std::array<std::optional<BaudRow>, 2>;

// The better row, as the set-up texts describe it.
struct UsartMatch {
  bool BestBRGH = false;
  BaudRow row;
};

// What the window shows.
struct UsartShown {
  std::array<RateTexts, 2> rows;    // BRGH = 0, BRGH = 1
  RateTexts best;                   // the row with the smaller error
  std::string bestBRGH;             // the field trSPBRGH: the BRGH bit, whatever its name says
  std::optional<UsartMatch> match;  // what a copy is made of; without it nothing can be copied
};

// Answers both rows for the oscillator (MHz) and the goal (Bd), SPBRG limited to 0..255. A row
// whose calculation is not finite on the way is absent.
[[nodiscard]] UsartRows usartRows(double foscMHz, double goalBaud);

// Answers all that the window shows.
[[nodiscard]] UsartShown showUsart(const BaudInputs& inputs);

}  // namespace tarnwick::calc
