#include "calc/lcd_text.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <sstream>
#include <vector>

namespace tarnwick::calc {
namespace {

const LcdSettings defaults = {"PORTB", "0", "PORTB", "4", "PORTB", "5",
                              "",      "0", "4",     "2", "2000",  "50"};

std::string withCrLf(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

TEST(BuildLcdText, WritesSetUpDefinitionsAndConstants) {
  LcdCharacters characters;
  characters[0] = {", $00, $0A, $0A, $00, $11, $0E, $00, $00", "smiley", "Smile"};
  characters[2] = {", $04, $0E, $1F, $04, $04, $04, $04, $00", "", ""};
  EXPECT_EQ(BuildLcdText(defaults, true, characters),
            withCrLf({"    '",
                      "    '    LCD setup",
                      "    '    =========",
                      "DEFINE LCD_DREG PORTB     ' LCD data port",
                      "DEFINE LCD_DBIT 0         ' LCD data starting bit",
                      "DEFINE LCD_RSREG PORTB    ' LCD register select port",
                      "DEFINE LCD_RSBIT 4        ' LCD register select bit",
                      "DEFINE LCD_EREG PORTB     ' LCD enable port",
                      "DEFINE LCD_EBIT 5         ' LCD enable bit",
                      "DEFINE LCD_BITS 4         ' LCD data bus size",
                      "DEFINE LCD_LINES 2        ' Number lines on LCD",
                      "DEFINE LCD_COMMANDUS 2000 ' Command delay time in us",
                      "DEFINE LCD_DATAUS 50      ' Data delay time in us",
                      "",
                      "    '",
                      "    '    Custom character definition",
                      "    '    ===========================",
                      "LCDOUT $FE, $40, $00, $0A, $0A, $00, $11, $0E, $00, $00 ' smiley",
                      "LCDOUT $FE, $50, $04, $0E, $1F, $04, $04, $04, $04, $00 ' ",
                      "",
                      "    '",
                      "    '    Custom character constant(s)",
                      "    '    ============================",
                      "Smile                CON 0",
                      ""}));
}

TEST(BuildLcdText, TakesEveryTextAsItStands) {
  EXPECT_EQ(BuildLcdText(defaults, false, {}), "");
  const std::string noTexts = BuildLcdText({}, true, {});
  EXPECT_NE(noTexts.find("\r\nDEFINE LCD_DREG      ' LCD data port\r\n"), std::string::npos);
  EXPECT_EQ(noTexts.find("LCD_RW"), std::string::npos);
  EXPECT_TRUE(noTexts.ends_with("' Data delay time in us\r\n\r\n"));

  LcdCharacters accented;
  accented[5].constantAlias = "\xC3\x89t\xC3\xA9";  // three characters in five bytes
  EXPECT_NE(BuildLcdText(defaults, false, accented)
                .find("\r\n\xC3\x89t\xC3\xA9" + std::string(17, ' ') + " CON 5\r\n"),
            std::string::npos);
}

// Every line that the text can have, and whether it has it.
std::string expectedText(const LcdSettings& s, bool include, const LcdCharacters& characters) {
  const bool wired = include && s.readWritePort != "";
  std::vector<std::pair<bool, std::string>> lines{
      {include, "    '"},
      {include, "    '    LCD setup"},
      {include, "    '    ========="},
      {include, "DEFINE LCD_DREG " + s.dataPort + "     ' LCD data port"},
      {include, "DEFINE LCD_DBIT " + s.dataBit + "         ' LCD data starting bit"},
      {include, "DEFINE LCD_RSREG " + s.registerPort + "    ' LCD register select port"},
      {include, "DEFINE LCD_RSBIT " + s.registerBit + "        ' LCD register select bit"},
      {include, "DEFINE LCD_EREG " + s.enablePort + "     ' LCD enable port"},
      {include, "DEFINE LCD_EBIT " + s.enableBit + "         ' LCD enable bit"},
      {wired, "DEFINE LCD_RWREG " + s.readWritePort + "    ' LCD read/write port"},
      {wired, "DEFINE LCD_RWBIT " + s.readWriteBit + "        ' LCD read/write bit"},
      {include, "DEFINE LCD_BITS " + s.busWidth + "         ' LCD data bus size"},
      {include, "DEFINE LCD_LINES " + s.lines + "        ' Number lines on LCD"},
      {include, "DEFINE LCD_COMMANDUS " + s.commandDelayUs + " ' Command delay time in us"},
      {include, "DEFINE LCD_DATAUS " + s.dataDelayUs + "      ' Data delay time in us"},
      {include, ""}};
  const auto add = [&](const char* title, const char* underline, const auto& line) {
    bool heading = false;
    for (const auto& character : characters) heading |= !line(character).empty();
    lines.insert(lines.end(), {{heading, "    '"}, {heading, title}, {heading, underline}});
    for (const auto& character : characters)
      lines.emplace_back(!line(character).empty(), line(character));
    lines.emplace_back(heading, "");
  };
  const auto slot = [&](const LcdCharacter& character) { return &character - characters.data(); };
  add("    '    Custom character definition",
      "    '    ===========================", [&](const LcdCharacter& c) {
        std::ostringstream line;
        line << "LCDOUT $FE, $" << std::hex << 0x40 + 8 * slot(c) << c.characterData << " ' ";
        return c.characterData.empty() ? "" : line.str() + c.description;
      });
  add("    '    Custom character constant(s)",
      "    '    ============================", [&](const LcdCharacter& c) {
        std::ostringstream line;
        line << std::left << std::setw(20) << c.constantAlias << " CON " << slot(c);
        return c.constantAlias.empty() ? "" : line.str();
      });
  std::string text;
  for (const auto& [has, line] : lines) text += has ? line + "\r\n" : "";
  return text;
}

TEST(BuildLcdText, AgreesWithItsListOfLinesInEveryCombination) {
  const std::array<std::size_t, 4> aliasLengths = {0, 1, 19, 20};
  const std::array<std::string, 4> descriptions = {"", "smiley", "ends in a blank ", "' , $1F\t%s"};
  for (unsigned flags = 0; flags < 4; ++flags) {
    LcdSettings settings = {"PORTC", "4", "RSport", "12", "", "7", "", "6", "8", "", "1", ""};
    if (flags & 2U) settings.readWritePort = "PORTA";
    for (unsigned inUse = 0; inUse < 256; ++inUse) {
      for (unsigned turn = 0; turn < 16; ++turn) {
        settings.readWriteBit = turn % 2 == 0 ? "6" : "";
        LcdCharacters characters;
        for (unsigned i = 0; i < 8; ++i) {
          const std::string label = ", $0" + std::to_string(i);
          if (inUse & (1U << i)) {
            for (int row = 0; row < 8; ++row) characters[i].characterData += label;
          }
          // The rotation gives each slot every length with every description.
          characters[i].constantAlias =
              std::string(aliasLengths[(turn + i) % 4], static_cast<char>('a' + i));
          characters[i].description = descriptions[(turn / 4 + i) % 4];
        }
        for (unsigned i = 0; turn == 0 && i < 8; ++i) characters[i].constantAlias.clear();
        ASSERT_EQ(BuildLcdText(settings, flags & 1U, characters),
                  expectedText(settings, flags & 1U, characters))
            << "flags " << flags << ", in use " << inUse << ", turn " << turn;
      }
    }
  }
}

}  // namespace
}  // namespace tarnwick::calc
