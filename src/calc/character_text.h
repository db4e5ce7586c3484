#pragma once

#include "calc/character_set.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick::calc {

// A character as a line of a program defines it.
struct CharacterDefinition {
  common::PixelMatrix picture;
  std::string description;    // the line's comment; at most nameLength characters
  std::string constantAlias;  // empty where no CON line names the character; at most nameLength
};

// The characters that a text holds.
struct CharacterText {
  // By slot, where LCDOUT lines name it.
  std::array<std::optional<CharacterDefinition>, slotCount> definitions;
  // Eight bytes without a slot; only in a text that defines no character.
  std::optional<common::PixelMatrix> picture;
};

// Reads the characters in a text, which may be a piece of a program or anything else.
//
// An LCDOUT statement, be it behind a label, that sets the CGRAM address to the first row of a slot
// and sends eight bytes or more, as those of BuildLcdText do, defines that slot's character, the
// last such line where there are several: top row first, its comment behind "'" or ";" the
// description. A line NAME CON 0 to 7 gives the character of that code its alias: anywhere in the
// text when it is in the columns of BuildLcdText, otherwise the first one behind the character's
// definition, since a program has other constants too. What BuildLcdText wrote is read back such
// that it would write the same.
//
// Any other text is searched for values, separated by whatever is no value: $1F, 0x1F, 1Fh, 31,
// %11111 or 0b11111. The first eight are the rows of a character, top row first; fewer are none.
// DEFINE and CON lines, the command of an LCDOUT line and the number of elements in name[8] do not
// count, and what stands behind "'", ";" or "//" only where there are fewer than eight without it.
// Of each byte the lower five bits count.
[[nodiscard]] CharacterText readCharacters(std::string_view text);

// Reads the characters in a text into the set: each into the slot that its line names, of which the
// first is then selected, or eight bytes into the selected slot, which keeps its description and
// alias. The slot is selected, its pixels are toggled as by drawCharacter: a blank character
// deletes. A text without characters changes nothing.
void pasteCharacters(CharacterSet& set, std::string_view text);

// Answers the eight bytes of the selected character's data, "$00, $0A, ..."; eight times "$00" for
// a slot that is not in use, or whose data is that of an earlier window and not shown.
[[nodiscard]] std::string characterBytes(const CharacterSet& set);

}  // namespace tarnwick::calc
