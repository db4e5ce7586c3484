#pragma once

#include "calc/character_set.h"

#include <string>

namespace tarnwick::calc {

// How the LCD is wired to the PIC, in the words of PBP's LCD defines. Any text is used as it
// stands.
struct LcdSettings {
  std::string dataPort;        // LCD_DREG
  std::string dataBit;         // LCD_DBIT, first bit of the data bus
  std::string registerPort;    // LCD_RSREG
  std::string registerBit;     // LCD_RSBIT
  std::string enablePort;      // LCD_EREG
  std::string enableBit;       // LCD_EBIT
  std::string readWritePort;   // LCD_RWREG; empty where the line is tied to ground
  std::string readWriteBit;    // LCD_RWBIT
  std::string busWidth;        // LCD_BITS, bits
  std::string lines;           // LCD_LINES
  std::string commandDelayUs;  // LCD_COMMANDUS, us
  std::string dataDelayUs;     // LCD_DATAUS, us
};

// Answers the PBP text, lines ended by CR LF, in up to three blocks, each followed by an empty
// line: the DEFINE lines of the LCD's wiring when they are to be included (those of the read/write
// line only with a read/write port); one LCDOUT statement for each character in use, which sets the
// CGRAM address and sends the eight rows, top row first; one CON line for each alias, whose value
// is the character's code. Nothing to say gives empty text.
// Source: PBP manual, LCDOUT and its defines.
[[nodiscard]] std::string BuildLcdText(const LcdSettings& settings, bool includeDefines,
                                       const CharacterSet& set);

}  // namespace tarnwick::calc
