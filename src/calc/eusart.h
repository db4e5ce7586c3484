#pragma once

#include "calc/baud_rate.h"

#include <array>
#include <optional>
#include <string>

namespace tarnwick::calc {

inline constexpr std::array<BaudMode, 4> eusartModes{
    {{64, 255}, {16, 255}, {16, 65535}, {4, 65535}}};

using EusartRows = std::array<std::optional<BaudRow>, 4>;

struct EusartInputs {
  BaudInputs baud;
  std::string location;  // register and bit of BRG16, such as "BAUDCON.3"
};

// SPBRG and SPBRGH of a generator.
struct SpbrgBytes {
  int low = 0;   // 0 to 255
  int high = 0;  // 0 to 255
};

// A best match: its fields, and as numbers and a flag what those of its registers read as.
struct EusartMatch {
  RateTexts texts;
  std::string brghText;  // "0" or "1"; the field trSPBRGH shows it, whatever its name says
  SpbrgBytes registers;
  bool BRGH = false;
};

// What the window shows and can do. Some of it outlives a calculation, so each is made of the one
// before (docs/ON_PURPOSE.md).
struct EusartShown {
  std::array<RateTexts, 4> rows;
  EusartMatch best;            // of the BRG16 = 0 rows
  EusartMatch best16;          // of the BRG16 = 1 rows
  EusartMatch finalMatch;      // the better of the two
  std::string brg16Text;       // "0" or "1", of the final match
  bool FinalBRG16 = true;      // as the copied texts take it: also where the text is empty
  bool matchesAreOld = false;  // the matches are of an earlier calculation than the rows
  bool canCopy = false;
  bool canLocate = true;  // the BRG16 location can be chosen
};

// Answers the four rows for the oscillator (MHz) and the goal (Bd), SPBRG limited from above only:
// a row with a value of 0 or less is not usable and absent. Errors are kept to the 15 significant
// digits that their number text has. A calculation that is not finite on the way is a fault of the
// whole: no rows at all.
[[nodiscard]] std::optional<EusartRows> eusartRows(double foscMHz, double goalBaud);

// Answers the two register bytes of a whole value from 0 to 65535.
[[nodiscard]] SpbrgBytes spbrgBytes(double spbrg);

// Answers all that the window shows after a calculation of `inputs`. The better row of a group and
// of a tie between rows is that of BRGH = 0, of a tie between groups that of BRG16 = 1. Without a
// usable row the best matches and the final SPBRGH stay as they were, after a fault all but the
// rows.
[[nodiscard]] EusartShown next(EusartShown shown, const EusartInputs& inputs);

// Answers the same for rows that are there already, whatever inputs they come from; none stand for
// a fault.
[[nodiscard]] EusartShown next(EusartShown shown, const std::optional<EusartRows>& rows, bool kBaud,
                               bool hasLocation);

// Answers what is shown once a location was chosen from the list: a text lets copy again.
[[nodiscard]] EusartShown locationChosen(EusartShown shown, const std::string& location);

}  // namespace tarnwick::calc
