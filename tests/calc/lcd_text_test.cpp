#include "calc/lcd_text.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <sstream>
#include <vector>

namespace tarnwick::calc {
namespace {

const LcdSettings defaults = {"PORTB", "0", "PORTB", "4", "PORTB", "5",
                              "",      "0", "4",     "2", "2000",  "50"};

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
  for (unsigned flags = 0; flags < 4 * 256 * 16; ++flags) {
    const unsigned turn = flags / 4 % 16;
    const bool include = flags % 2 == 1;
    LcdSettings settings = {"PORTC", "4", "RSport", "12", "", "7", "", "6", "8", "", "1", ""};
    if (flags / 2 % 2 == 1) settings.readWritePort = "PORTA";
    if (turn % 2 == 1) settings.readWriteBit = "";
    LcdCharacters characters;
    for (unsigned i = 0; i < 8; ++i) {
      for (int row = 0; flags / 64 >> i & 1U && row < 8; ++row)
        characters[i].characterData += ", $0" + std::to_string(i);
      // The rotation gives each slot every length with every description.
      const std::size_t length = turn == 0 ? 0 : aliasLengths[(turn + i) % 4];
      characters[i].constantAlias = std::string(length, static_cast<char>('a' + i));
      characters[i].description = descriptions[(turn / 4 + i) % 4];
    }
    ASSERT_EQ(BuildLcdText(settings, include, characters),
              expectedText(settings, include, characters))
        << flags;
  }
}

}  // namespace
}  // namespace tarnwick::calc
