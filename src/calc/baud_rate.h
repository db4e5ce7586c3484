#pragma once

#include <optional>
#include <string>

// What the calculators of the two hardware serial ports have in common: the generator's formulas,
// its rows, and how a row is shown.
namespace tarnwick::calc {

// What both ports ask for.
struct BaudInputs {
  double foscMHz = 0;  // oscillator frequency, MHz
  double rate = 0;     // wanted rate: Bd, or kBd with kBaud
  bool kBaud = false;
};

// One setting of the mode bits of a baud rate generator. In every array of settings or rows the
// BRG16 = 0 pair comes first, and within a pair BRGH = 0.
struct BaudMode {
  double divisor = 0;   // oscillator cycles in one bit for each count of SPBRG + 1
  double maxSpbrg = 0;  // largest value that the register (or register pair) takes
};

// What a generator does in one mode.
struct BaudRow {
  double Spbrg = 0;  // register value, a whole number
  double Calc = 0;   // rate that it really gives, whole Bd
  double Err = 0;    // (Calc - goal) / goal; 0.01 means 1 % too fast
};

// A row as its fields show it; all empty where there is none.
struct RateTexts {
  std::string spbrgh;  // high byte, where the register value is shown as two bytes
  std::string spbrg;   // whole value, or low byte
  std::string calcBaud;
  std::string err;
};

// Answers the wanted rate in Bd.
[[nodiscard]] double goalBaud(double rate, bool kBaud);

// Answers the SPBRG value whose count comes nearest to what the baud rate (Bd) needs at the
// oscillator frequency (MHz); an exact half goes to the even value. It is not limited to what a
// register takes; it is not finite for a rate of 0, and -1 where the divisor's product overflows.
// Source: data sheets, "Baud Rate Formula": rate = Fosc / (D (SPBRG + 1)).
[[nodiscard]] double SpbrgFor(double foscMHz, double baud, double divisor);

// Answers the rate in whole Bd that a register value gives at the oscillator frequency (MHz).
// Source: as for SpbrgFor.
[[nodiscard]] double BaudFor(double foscMHz, double spbrg, double divisor);

// Answers the signed relative error of a rate: positive for a generator that runs fast. Not finite
// for a goal of 0.
// Source: data sheets, "Calculating Baud Rate Error".
[[nodiscard]] double BaudError(double calc, double goal);

// Answers the unlimited register value of a mode at the oscillator frequency (MHz) for the goal
// (Bd); none when a step of its calculation is not finite.
[[nodiscard]] std::optional<double> wantedSpbrg(const BaudMode& mode, double foscMHz,
                                                double goalBaud);

// Answers the row of a register value; none when its error, also in percent, is not finite.
[[nodiscard]] std::optional<BaudRow> baudRow(const BaudMode& mode, double foscMHz, double goalBaud,
                                             double spbrg);

// Answers the BRGH of the row with the smaller error of a pair; a tie goes to BRGH = 0, a lone row
// wins, no row gives none.
[[nodiscard]] std::optional<bool> betterBRGH(const std::optional<BaudRow>& row0,
                                             const std::optional<BaudRow>& row1);

// Answers how a relative error is shown: "0.16%".
[[nodiscard]] std::string errorText(double err);

// Answers how a row is shown, its register value as one number, its rate in Bd or, followed by
// " K", in kBd.
[[nodiscard]] RateTexts rateTexts(const std::optional<BaudRow>& row, bool kBaud);

// Answers how the BRGH bit is shown.
[[nodiscard]] std::string bitText(bool bit);

}  // namespace tarnwick::calc
