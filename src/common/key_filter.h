#pragma once

namespace tarnwick::common {

// What becomes of a character typed into an entry field.
struct KeyVerdict {
  bool enter = false;       // the field is to be validated, then its Enter action follows
  bool accepted = false;    // the character may be inserted
  bool pointTyped = false;  // the field's point-typed flag from now on
};

// Decimal entry field: digits, backspace and one "." for each time the flag was cleared pass;
// every other character is cancelled, Enter (13) after it has been reported.
[[nodiscard]] KeyVerdict decimalKey(char32_t character, bool pointTyped);

// Whole-number entry field: digits and backspace pass; the flag is handed back untouched.
[[nodiscard]] KeyVerdict wholeNumberKey(char32_t character, bool pointTyped);

}  // namespace tarnwick::common
