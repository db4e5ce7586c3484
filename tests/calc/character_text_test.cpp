#include "calc/character_text.h"

#include <gtest/gtest.h>

namespace tarnwick::calc {
namespace {

const std::string face = "$00, $0A, $0A, $00, $11, $0E, $00, $00";

TEST(CharacterText, TakesEightBytesOutOfAnyText) {
  struct Case {
    std::string text;
    std::string bytes;
  };
  const std::string none = "$00, $00, $00, $00, $00, $00, $00, $00";
  for (const auto& [text, bytes] : {
           Case{"0,0x0A,0aH,%0,0b10001,14,$0,0X0", face},
           {"byte face[8] = {\n  0b00000, 0B01010, 0b01010,\r0x00, 0x11, 0xe, 0, 0};", face},
           {"$20-$2A|$EA $40;$F1'-14\t256...4294967296", face},
           {"00h 0Ah 10 %00000 17 $0E 0 0 $1F", face},
           {"x0 8x $ % 0x 0b 2 0b2 $G1 1Gh _5 %12 0xh h 10 10 0 17 14 0 0", "$02" + face.substr(3)},
           {"\xC2\xB5\x30\xC2\xA0\x31\xE2\x80\x94\x32,3,4,5,6,7",
            "$00, $01, $02, $03, $04, $05, $06, $07"},
           {"0 ' row 1\n10 // row 2\n10 ; row 3\n0 ' 4\n17\n14\n0\n0", face},
           {"0;10;10;0;17;14;0;0", face},
           {"$00, $0A, $0A, $00, $11, $0E, $00", none},
           {"each beach is 50 miles off", none},
           // What a program says beside the bytes
           {"DEFINE LCD_DBIT 1,2,3,4,5,6,7,8", none},
           {"A CON 1\nB CON 2\nC con 3\n D\tCON\t%100 ' d\nE CON 9\nF CON 6 + 1\nG CON 7", none},
           {"LCDOUT $FE, $40, $00, $0A, $0A, $00, $11, $0E", none},
           {"LCDOUT $FE, $80, 0, 10, 10, 0, 17, 14 ' 1 2 3\nLCDOUT 0, 0", face},
           {"LCDOUT $FE, $41, 0, 10, 10, 0, 17, 14, 0, 0", face},
       }) {
    CharacterSet set;
    OpenEditor(set);
    SelectSlot(set, 3);
    pasteCharacters(set, text);
    EXPECT_EQ(characterBytes(set), bytes) << text;
    EXPECT_EQ(set.kept.SelectedSlot, 3) << text;
  }
}

TEST(CharacterText, FillsTheSlotsThatLinesName) {
  struct Case {
    std::string text;
    std::size_t slot;
    std::string description;
    std::string alias;
  };
  const std::string pair = "\xF0\x9F\x98\x80";  // two of the characters that a field counts
  const std::string nine = pair + pair + pair + pair + pair + pair + pair + pair + pair;
  for (const auto& [text, slot, description, alias] : {
           Case{"Big                  CON 0\r\nLCDOUT $FE, $40, 31, $0A, $0A, $00, $11, $0E, $00, "
                "$00\r\n"
                "LCDOUT $FE, $40, " +
                    face + " ' big $1F\r\nZero CON 0",
                0, "big $1F", "Big"},
           {"Baud CON 7\n\tLcdOut 254,0x78,0,10,10,0,17,14,0,0;no names here\n"
            "  Small con 7 ; of 8\nSeven CON 7",
            7, "no names here", "Small"},
           {"LCDOUT $FE, $58, " + face + " '  two 'blanks'  \r\n it's  2 CON 0       CON 3\r\n", 3,
            " two 'blanks'  ", " it's  2 CON 0"},
           {"LCDOUT $FE, $60, " + face + " ' more than twenty letters\r\n" +
                "AndItsNameHasMoreThanTwentyToo CON 4",
            4, "more than twenty let", "AndItsNameHasMoreTha"},
           {"LCDOUT $FE, $68, " + face + " ' " + nine + "a" + pair, 5, nine + "a", ""},
       }) {
    CharacterSet set;
    OpenEditor(set);
    SelectSlot(set, slot);
    InvertAll(set);
    set.shown.slotTable[slot].constantAlias = "Full";
    pasteCharacters(set, "Init: LCDOUT $FE, $48, " + face + "\n" + text + "\n");
    EXPECT_EQ(set.kept.SelectedSlot, std::min<std::size_t>(slot, 1)) << text;
    for (const std::size_t filled : {std::size_t{1}, slot})
      EXPECT_EQ(set.kept.CharacterData[filled], ", " + face) << text;
    EXPECT_EQ(set.shown.slotTable[slot].description, description) << text;
    EXPECT_EQ(set.shown.slotTable[slot].constantAlias, alias) << text;
  }
}

}  // namespace
}  // namespace tarnwick::calc
