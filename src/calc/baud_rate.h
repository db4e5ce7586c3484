#pragma once

#include <array>
#include <optional>

namespace tarnwick::calc {

// One setting of the mode bits of a baud rate generator. In every array of settings or rows the
// BRG16 = 0 pair comes first, and within a pair BRGH = 0.
struct BaudMode {
  double divisor = 0;   // oscillator cycles in one bit for each count of SPBRG + 1
  double maxSpbrg = 0;  // largest value that the register (or register pair) takes
};

inline constexpr std::array<BaudMode, 2> usartModes{{{64, 255}, {16, 255}}};
inline constexpr std::array<BaudMode, 4> eusartModes{
    {{64, 255}, {16, 255}, {16, 65535}, {4, 65535}}};

// What a generator does in one mode.
struct BaudRow {
  double Spbrg = 0;  // register value, a whole number
  double Calc = 0;   // rate that it really gives, whole Bd
  double Err = 0;    // (Calc - goal) / goal; 0.01 means 1 % too fast
};

using UsartRows = std::array<std::optional<BaudRow>, 2>;
using EusartRows = std::array<std::optional<BaudRow>, 4>;

// SPBRG and SPBRGH of a 16-bit generator.
struct SpbrgBytes {
  int low = 0;   // 0 to 255
  int high = 0;  // 0 to 255
};

// Which rows of an EUSART fit best.
struct EusartBest {
  std::optional<bool> BestBRGH;    // BRGH of the best BRG16 = 0 row; none where no row is usable
  std::optional<bool> BestBRGH16;  // BRGH of the best BRG16 = 1 row; none where no row is usable
  bool FinalBRG16 = false;         // BRG16 of the better of the two
};

// Answers the SPBRG value whose count comes nearest to what the baud rate (Bd) needs at the
// oscillator frequency (MHz); an exact half goes to the even value. It is not limited to what a
// register takes, and not finite for a rate of 0 or where a product overflows.
// Source: data sheets, "Baud Rate Formula": rate = Fosc / (D (SPBRG + 1)).
[[nodiscard]] double SpbrgFor(double foscMHz, double baud, double divisor);

// Answers the rate in whole Bd that a register value gives at the oscillator frequency (MHz).
// Source: as for SpbrgFor.
[[nodiscard]] double BaudFor(double foscMHz, double spbrg, double divisor);

// Answers the signed relative error of a rate: positive for a generator that runs fast. Not finite
// for a goal of 0.
// Source: data sheets, "Calculating Baud Rate Error".
[[nodiscard]] double BaudError(double calc, double goal);

// Answers both rows of a USART for the oscillator (MHz) and the goal (Bd), SPBRG limited to 0..255.
// A row whose calculation is not finite on the way is absent.
[[nodiscard]] UsartRows usartRows(double foscMHz, double goalBaud);

// Answers the four rows of an EUSART for the oscillator (MHz) and the goal (Bd), SPBRG limited from
// above only: a row with a value of 0 or less is not usable and absent. Errors are kept to the 15
// significant digits that their number text has. A calculation that is not finite on the way is a
// fault of the whole: no rows at all.
[[nodiscard]] std::optional<EusartRows> eusartRows(double foscMHz, double goalBaud);

// Answers the BRGH of the row with the smaller error; a tie goes to BRGH = 0, a lone row wins.
[[nodiscard]] std::optional<bool> usartBest(const UsartRows& rows);

// Answers the best row of each BRG16 group (a tie goes to BRGH = 0, a lone row wins) and the better
// group (a tie goes to BRG16 = 1); none when no row is usable.
[[nodiscard]] std::optional<EusartBest> eusartBest(const EusartRows& rows);

// Answers the two register bytes of a whole value from 0 to 65535.
[[nodiscard]] SpbrgBytes spbrgBytes(double spbrg);

}  // namespace tarnwick::calc
