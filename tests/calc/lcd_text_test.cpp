#include "calc/lcd_text.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnwick::calc {
namespace {

const LcdSettings defaults{"PORTB", "0", "PORTB", "4", "PORTB", "5",
                           "",      "0", "4",     "2", "2000",  "50"};

TEST(LcdText, SaysWhatIsInUse) {
  CharacterSet set;
  EXPECT_EQ(BuildLcdText(defaults, false, set), "");
  set.kept.CharacterData[0] = ", $00, $0A, $0A, $00, $11, $0E, $00, $00";
  set.shown.slotTable[0].description = "smiley";
  set.shown.slotTable[0].constantAlias = "Smile";
  set.kept.CharacterData[2] = ", $04, $0E, $1F, $04, $04, $04, $04, $00";
  set.shown.slotTable[7].constantAlias = "of_twenty_characters";
  set.shown.slotTable[6].constantAlias = "\xC3\x89t\xC3\xA9";  // three characters in five bytes
  EXPECT_EQ(BuildLcdText(defaults, true, set),
            "    '\r\n"
            "    '    LCD setup\r\n"
            "    '    =========\r\n"
            "DEFINE LCD_DREG PORTB     ' LCD data port\r\n"
            "DEFINE LCD_DBIT 0         ' LCD data starting bit\r\n"
            "DEFINE LCD_RSREG PORTB    ' LCD register select port\r\n"
            "DEFINE LCD_RSBIT 4        ' LCD register select bit\r\n"
            "DEFINE LCD_EREG PORTB     ' LCD enable port\r\n"
            "DEFINE LCD_EBIT 5         ' LCD enable bit\r\n"
            "DEFINE LCD_BITS 4         ' LCD data bus size\r\n"
            "DEFINE LCD_LINES 2        ' Number lines on LCD\r\n"
            "DEFINE LCD_COMMANDUS 2000 ' Command delay time in us\r\n"
            "DEFINE LCD_DATAUS 50      ' Data delay time in us\r\n"
            "\r\n"
            "    '\r\n"
            "    '    Custom character definition\r\n"
            "    '    ===========================\r\n"
            "LCDOUT $FE, $40, $00, $0A, $0A, $00, $11, $0E, $00, $00 ' smiley\r\n"
            "LCDOUT $FE, $50, $04, $0E, $1F, $04, $04, $04, $04, $00 ' \r\n"
            "\r\n"
            "    '\r\n"
            "    '    Custom character constant(s)\r\n"
            "    '    ============================\r\n"
            "Smile                CON 0\r\n"
            "\xC3\x89t\xC3\xA9                  CON 6\r\n"
            "of_twenty_characters CON 7\r\n"
            "\r\n");
}

}  // namespace
}  // namespace tarnwick::calc
