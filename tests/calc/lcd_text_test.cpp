#include "calc/lcd_text.h"

#include <gtest/gtest.h>

namespace tarnwick::calc {
namespace {

TEST(LcdText, SaysWhatIsInUse) {
  CharacterSet set;
  EXPECT_EQ(BuildLcdText({}, false, set), "");
  set.kept.CharacterData[0] = ", $00, $0A, $0A, $00, $11, $0E, $00, $00";
  set.shown.slotTable[0].description = "smiley";
  set.shown.slotTable[0].constantAlias = "Smile";
  set.kept.CharacterData[2] = ", $04, $0E, $1F, $04, $04, $04, $04, $00";
  set.shown.slotTable[7].constantAlias = "of_twenty_characters";
  set.shown.slotTable[6].constantAlias = "\xC3\x89t\xC3\xA9";  // three characters in five bytes
  EXPECT_EQ(BuildLcdText({}, true, set).find("LCD_RW"), std::string::npos);
  EXPECT_EQ(BuildLcdText({}, false, set),
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
