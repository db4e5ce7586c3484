#pragma once

#include <string>

namespace tarnwick::calc {

// What every set-up text says about the port: the wanted rate and the oscillator as their fields
// show them.
struct SerialGoal {
  std::string baud;    // in Bd, or in kBd with kBaud
  bool kBaud = false;  // the unit of baud
  std::string osc;     // MHz
};

// The best match of the USART calculator, as numbers.
struct UsartSetup {
  SerialGoal goal;
  bool BestBRGH = false;
  double Spbrg = 0;  // whole number, 0 to 255
  double Err = 0;    // relative; 0.01 means 1 %
};

// The final best match of the EUSART calculator, as the texts that its fields show.
struct EusartSetup {
  SerialGoal goal;
  std::string brg16;     // "0": 8-bit generator; any other text: 16-bit
  std::string brgh;      // "1": high speed; any other text: low speed
  std::string spbrg;     // low byte
  std::string spbrgh;    // high byte, used with the 16-bit generator only
  std::string err;       // with its "%"
  std::string location;  // register and bit of BRG16, such as "BAUDCON.3"; any text is taken
};

// The four texts below are lines of PBP code, each ended by CR LF, that set up the serial port.
// The comments of a text stand in one column, but for what is said of each.
// Source: the compiler's manual, HSERIN and HSEROUT; data sheets, RCSTA, TXSTA and BAUDCON.

// Answers the assignments to RCSTA, TXSTA and SPBRG, with comments in column 13.
[[nodiscard]] std::string UsartRegisterText(const UsartSetup& setup);

// Answers the DEFINE lines, with comments in column 23.
[[nodiscard]] std::string UsartDefineText(const UsartSetup& setup);

// Answers the assignments to RCSTA, TXSTA and SPBRG, and for the 16-bit generator to SPBRGH and the
// BRG16 bit, with comments in column 15 (for a location of nine characters). An 8-bit SPBRG of
// exactly 10 or 100 has neither comment mark nor rate: the line goes on with the unit of the rate.
[[nodiscard]] std::string EusartRegisterText(const EusartSetup& setup);

// Answers the DEFINE lines, for the 16-bit generator followed by the assignments to SPBRGH and the
// BRG16 bit, with comments in column 23; the comment of an 8-bit SPBRG follows one space behind it.
[[nodiscard]] std::string EusartDefineText(const EusartSetup& setup);

}  // namespace tarnwick::calc
