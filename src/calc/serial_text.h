#pragma once

#include "calc/eusart.h"
#include "calc/usart.h"

#include <string>
#include <string_view>

namespace tarnwick::calc {

// What every set-up text says about the port: the wanted rate and the oscillator as their fields
// show them.
struct SerialGoal {
  std::string baud;    // in Bd, or in kBd with kBaud
  bool kBaud = false;  // the unit of baud
  std::string osc;     // MHz
};

// The four texts below are lines of PBP code, each ended by CR LF, that set up the serial port.
// The comments of a text stand in one column, but for what is said of each.
// Source: the compiler's manual, HSERIN and HSEROUT; data sheets, RCSTA, TXSTA and BAUDCON.

// Answers the assignments to RCSTA, TXSTA and SPBRG, with comments in column 13.
[[nodiscard]] std::string UsartRegisterText(const SerialGoal& goal, const UsartMatch& match);

// Answers the DEFINE lines, with comments in column 23.
[[nodiscard]] std::string UsartDefineText(const SerialGoal& goal, const UsartMatch& match);

// Answers the assignments to RCSTA, TXSTA and SPBRG, and for the 16-bit generator to SPBRGH and the
// BRG16 bit (`location`, any text as it stands), with comments in column 15 for a location of nine
// characters. An 8-bit SPBRG of exactly 10 or 100 has neither comment mark nor rate: the line goes
// on with the unit of the rate (docs/ON_PURPOSE.md).
[[nodiscard]] std::string EusartRegisterText(const SerialGoal& goal, const EusartShown& shown,
                                             std::string_view location);

// Answers the DEFINE lines, for the 16-bit generator followed by the assignments to SPBRGH and the
// BRG16 bit, with comments in column 23; the comment of an 8-bit SPBRG follows one space behind it
// (docs/ON_PURPOSE.md).
[[nodiscard]] std::string EusartDefineText(const SerialGoal& goal, const EusartShown& shown,
                                           std::string_view location);

}  // namespace tarnwick::calc
