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

// What the text must be, said as lists of lines.
std::string expectedText(const LcdSettings& s, bool include, const LcdCharacters& characters) {
  std::vector<std::string> lines;
  const auto heading = [&lines](const std::string& title, const std::string& underline) {
    for (const std::string& rest : {std::string(), "    " + title, "    " + underline})
      lines.push_back("    '" + rest);
  };
  if (include) {
    heading("LCD setup", "=========");
    lines.push_back("DEFINE LCD_DREG " + s.dataPort + "     ' LCD data port");
    lines.push_back("DEFINE LCD_DBIT " + s.dataBit + "         ' LCD data starting bit");
    lines.push_back("DEFINE LCD_RSREG " + s.registerPort + "    ' LCD register select port");
    lines.push_back("DEFINE LCD_RSBIT " + s.registerBit + "        ' LCD register select bit");
    lines.push_back("DEFINE LCD_EREG " + s.enablePort + "     ' LCD enable port");
    lines.push_back("DEFINE LCD_EBIT " + s.enableBit + "         ' LCD enable bit");
    if (s.readWritePort != "") {
      lines.push_back("DEFINE LCD_RWREG " + s.readWritePort + "    ' LCD read/write port");
      lines.push_back("DEFINE LCD_RWBIT " + s.readWriteBit + "        ' LCD read/write bit");
    }
    lines.push_back("DEFINE LCD_BITS " + s.busWidth + "         ' LCD data bus size");
    lines.push_back("DEFINE LCD_LINES " + s.lines + "        ' Number lines on LCD");
    lines.push_back("DEFINE LCD_COMMANDUS " + s.commandDelayUs + " ' Command delay time in us");
    lines.push_back("DEFINE LCD_DATAUS " + s.dataDelayUs + "      ' Data delay time in us");
    lines.emplace_back();
  }
  bool any = false;
  for (std::size_t i = 0; i < 8; ++i) {
    if (characters[i].characterData.empty()) continue;
    if (!any) heading("Custom character definition", "===========================");
    any = true;
    std::ostringstream line;
    line << "LCDOUT $FE, $" << std::hex << 0x40 + 8 * i << characters[i].characterData << " ' "
         << characters[i].description;
    lines.push_back(line.str());
  }
  if (any) lines.emplace_back();
  any = false;
  for (std::size_t i = 0; i < 8; ++i) {
    if (characters[i].constantAlias.empty()) continue;
    if (!any) heading("Custom character constant(s)", "============================");
    any = true;
    std::ostringstream line;
    line << std::left << std::setw(20) << characters[i].constantAlias << " CON " << i;
    lines.push_back(line.str());
  }
  if (any) lines.emplace_back();
  return withCrLf(lines);
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

TEST(LcdCharacters, AreTheKeptDataWithTheShownNames) {
  CharacterSet set = TogglePixel(SelectSlot(OpenEditor({}), 6), 39);
  set.shown.slotTable[6].description = "dot";
  set.shown.slotTable[6].constantAlias = "Dot";
  EXPECT_EQ(BuildLcdText(defaults, false, lcdCharacters(set)),
            withCrLf({"    '", "    '    Custom character definition",
                      "    '    ===========================",
                      "LCDOUT $FE, $70, $00, $00, $00, $00, $00, $00, $00, $10 ' dot", "", "    '",
                      "    '    Custom character constant(s)",
                      "    '    ============================", "Dot                  CON 6", ""}));
}

}  // namespace
}  // namespace tarnwick::calc
