#include "support/program.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>

#include <set>

namespace tarnwick::tests {
namespace {

using ui::fromQt;

const std::string blank(40, '.');
const std::string noLabels = " $00, $00, $00, $00, $00, $00, $00, $00";
const std::string heading =
    "    '/    '    Custom character definition/    '    ===========================/";

// A character as eight groups of five, '#' where its pixel is on.
const std::string arrow = "..#.. .###. ##### ..#.. ..#.. ..#.. ..#.. .....";
const std::string arrowData = " $04, $0E, $1F, $04, $04, $04, $04, $00";

std::string withoutBlanks(std::string text) {
  std::erase(text, ' ');
  return text;
}

class LcdWindow : public Program {
protected:
  LcdWindow() { open("cCustomChar", "fCustomCharacter"); }

  static std::string cell(int pixel) { return "chk(" + std::to_string(pixel) + ")"; }
  static std::string of(const char* family, int slot) {
    return family + ("(" + std::to_string(slot) + ")");
  }
  // The grid's cells from the top left on, as pixel numbers.
  static int pixelAt(int place) { return place / 5 * 5 + 4 - place % 5; }

  void draw(const std::string& character) {
    const std::string wanted = withoutBlanks(character);
    for (int i = 0; i < 40; ++i)
      if (wanted[static_cast<std::size_t>(i)] == '#') click(cell(pixelAt(i)));
  }
  void name(int slot, const std::string& description, const std::string& alias) {
    click(of("tName", slot));
    type(description);
    click(of("tConstant", slot));
    type(alias);
  }

  void enterText(const std::string& list, const std::string& characters) {
    auto* box = control<QComboBox>(list);
    box->setFocus(Qt::MouseFocusReason);
    box->lineEdit()->selectAll();
    press(Qt::Key_Delete);
    type(characters);
  }

  QImage seen(const std::string& name) { return control(name)->grab().toImage(); }
  // The pixels of a picture by their colours: all of a cell must have one of the two.
  std::string picture(const std::string& name, QColor off = Qt::white) {
    const QImage image = seen(name);
    std::string text;
    for (int i = 0; i < 40; ++i) {
      std::set<QRgb> colours;
      for (int dot = 0; dot < 9; ++dot)
        colours.insert(image.pixel(2 + 3 * (i % 5) + dot % 3, 2 + 3 * (i / 5) + dot / 3));
      const QColor colour = colours.size() == 1 ? QColor(*colours.begin()) : QColor();
      text += colour == QColor(Qt::black) ? '#' : colour == off ? '.' : '?';
    }
    return text;
  }
  std::string preview() { return picture("Preview", QColor(0, 128, 0)); }
  std::string grid() {
    std::string text;
    for (int i = 0; i < 40; ++i) {
      const QColor colour(seen(cell(pixelAt(i))).pixel(8, 8));
      text += colour == QColor(Qt::black) ? '#' : colour == QColor(Qt::white) ? '.' : '?';
    }
    return text;
  }
  std::string labels() {
    std::string text;
    for (int row = 0; row < 8; ++row) text += " " + shown(of("lLine", row)) + (row < 7 ? "," : "");
    return text;
  }
  // Data, description and alias of a slot, and whether the two can be edited.
  std::string slot(int i) {
    const bool on = control(of("tName", i))->isEnabled();
    EXPECT_EQ(control(of("tConstant", i))->isEnabled(), on) << i;
    return shown(of("tChar", i)) + "|" + shown(of("tName", i)) + "|" + shown(of("tConstant", i)) +
           (on ? "|on" : "|off");
  }
  bool allSlotsAreBlank() {
    bool all = true;
    for (int i = 0; i < 8; ++i)
      all = all && slot(i) == "|||off" && picture("Char" + std::to_string(i)) == blank;
    return all;
  }
  // The text that the copy button leaves on the clipboard, lines parted by "/".
  std::string copied() {
    click("cCopyClip");
    return fromQt(QGuiApplication::clipboard()->text().replace("/", "~").replace("\r\n", "/"));
  }
};

TEST_F(LcdWindow, OpensBlankAtItsPlaces) {
  EXPECT_EQ(grid(), blank);
  EXPECT_EQ(preview(), blank);
  EXPECT_TRUE(allSlotsAreBlank());

  const auto place = [this](const std::string& name) {
    return QRect(control(name)->mapTo(current(), QPoint(0, 0)), control(name)->size());
  };
  const QRect topLeft = place("chk(4)");
  for (int p = 0; p < 40; ++p)
    EXPECT_EQ(place(cell(p)), topLeft.translated(16 * (4 - p % 5), 16 * (p / 5))) << p;
  EXPECT_EQ(topLeft.size(), QSize(17, 17));
  for (const char* family : {"oChar", "tChar", "tName", "tConstant", "Char"})
    for (int i = 1; i < 8; ++i) {
      const auto member = [&](int n) {
        return family == std::string("Char") ? family + std::to_string(n) : of(family, n);
      };
      EXPECT_EQ(place(member(i)).top() - place(member(i - 1)).top(), 32) << member(i);
    }
  const QRect panel = place("Preview");
  EXPECT_EQ(panel.size(), QSize(19, 29));
  EXPECT_EQ(place("Char3").size(), QSize(19, 29));
  EXPECT_EQ(place("tLeft").topLeft(), panel.topLeft() + QPoint(-41, 3));
  EXPECT_EQ(place("tRight").topLeft(), panel.topLeft() + QPoint(17, 3));
  EXPECT_TRUE(place("Image2").contains(place("tLeft") | place("tRight") | panel));
  const QImage framed = seen("Char0");
  for (const QPoint edge : {QPoint(0, 0), QPoint(18, 5), QPoint(9, 28), QPoint(0, 28)})
    EXPECT_EQ(framed.pixelColor(edge), QColor(Qt::black));
}

TEST_F(LcdWindow, ShowsLeadAndFollowTextAroundThePreview) {
  EXPECT_EQ(shown("uTleft") + shown("tLeft") + shown("uTright") + shown("tRight"), "ABABCDCD");
  enter("uTright", "WMx");
  EXPECT_EQ(shown("uTright"), "WM");
  EXPECT_EQ(shown("tRight"), "WM");
  enter("uTleft", "W");
  EXPECT_EQ(shown("tLeft"), "W");
  for (const char* name : {"tLeft", "tRight"}) {
    const auto* text = control<QLineEdit>(name);
    EXPECT_TRUE(text->isReadOnly() && text->font().bold() && text->font().pointSize() == 18);
    EXPECT_FALSE(text->focusPolicy() & Qt::TabFocus);
    EXPECT_EQ(seen(name).pixelColor(1, 1), QColor(0, 128, 0));
    EXPECT_LE(text->fontMetrics().horizontalAdvance("WW") + 4, text->width());
    EXPECT_EQ(bool(text->alignment() & Qt::AlignRight), name == std::string("tLeft"));
  }
}

TEST_F(LcdWindow, ShowsADrawnCharacterEverywhere) {
  click("oChar(3)");
  draw(arrow);
  name(3, "up", "Up");
  EXPECT_EQ(slot(3), arrowData + "|up|Up|on");
  EXPECT_EQ(labels(), arrowData);
  for (const std::string& picture : {grid(), preview(), picture("Char3")})
    EXPECT_EQ(picture, withoutBlanks(arrow));
  EXPECT_EQ(picture("Char2"), blank);

  click("oChar(2)");
  EXPECT_EQ(slot(2), "|||off");
  EXPECT_EQ(labels(), noLabels);
  EXPECT_EQ(grid() + preview(), blank + blank);
  EXPECT_EQ(picture("Char3"), withoutBlanks(arrow));
  click("oChar(3)");
  EXPECT_EQ(grid() + preview(), withoutBlanks(arrow + arrow));
  EXPECT_EQ(slot(3), arrowData + "|up|Up|on");
  press(Qt::Key_Up);  // the arrow keys choose a slot as well
  EXPECT_TRUE(isSelected("oChar(2)"));
  EXPECT_EQ(grid(), blank);
}

TEST_F(LcdWindow, InvertsClearsAndDeletes) {
  draw("....# ..... ..... ..... ..... ..... ..... .....");
  name(0, "lost on the way", "Lost");
  click("cInvertAll");  // the only pixel goes off first, and the names with it
  EXPECT_EQ(slot(0), " $1E, $1F, $1F, $1F, $1F, $1F, $1F, $1F|||on");
  name(0, "kept", "Kept");
  click("oChar(1)");
  click("cInvertAll");
  name(1, "one", "One");
  EXPECT_EQ(grid(), std::string(40, '#'));
  click("cClear");
  EXPECT_EQ(slot(1), "|||off");
  EXPECT_EQ(picture("Char1") + grid() + preview(), blank + blank + blank);
  EXPECT_EQ(labels(), noLabels);
  EXPECT_EQ(slot(0), " $1E, $1F, $1F, $1F, $1F, $1F, $1F, $1F|kept|Kept|on");

  click("oChar(0)");
  click("cInvertAll");
  click(cell(0));
  EXPECT_EQ(slot(0), "|||off");  // the last pixel went off
  click("oChar(7)");
  draw(arrow);
  click("cDeletedAll");
  EXPECT_TRUE(isSelected("oChar(0)"));
  EXPECT_TRUE(allSlotsAreBlank());
  EXPECT_EQ(copied(), "");
}

TEST_F(LcdWindow, KeepsTheLabelsOfADeletedCharacter) {
  draw(arrow);
  click("cDeleteChar");
  EXPECT_EQ(slot(0), "|||off");
  EXPECT_EQ(grid() + preview() + picture("Char0"), blank + blank + blank);
  EXPECT_EQ(labels(), arrowData);
  click("oChar(0)");  // choosing the selected slot changes nothing
  EXPECT_EQ(labels(), arrowData);
  click(cell(0));
  EXPECT_EQ(slot(0), " $01, $0E, $1F, $04, $04, $04, $04, $00|||on");
  EXPECT_EQ(picture("Char0"), withoutBlanks("....#" + std::string(35, '.')));
  EXPECT_EQ(copied(), heading + "LCDOUT $FE, $40, $01, $0E, $1F, $04, $04, $04, $04, $00 ' //");
  for (const char* way : {"cDeletedAll", "cClear"}) {
    draw(arrow);
    click("cDeleteChar");
    click(way);
    EXPECT_EQ(labels(), noLabels) << way;
  }
}

TEST_F(LcdWindow, TogglesOnceForEachClickOfAFastPair) {
  const QPoint place = control(cell(12))->mapTo(current(), QPoint(8, 8));
  QTest::mouseDClick(current()->windowHandle(), Qt::LeftButton, {}, place);
  EXPECT_EQ(grid(), blank);
  click(cell(12));
  QTest::mouseClick(current()->windowHandle(), Qt::LeftButton, {}, place);
  QTest::mouseClick(current()->windowHandle(), Qt::LeftButton, {}, place);
  EXPECT_EQ(shown("tChar(0)"), " $00, $00, $04, $00, $00, $00, $00, $00");
}

TEST_F(LcdWindow, IsDrawnByKeys) {
  control("uTright")->setFocus();
  press(Qt::Key_Tab);
  EXPECT_EQ(focused(), cell(4));
  for (const Qt::Key key :
       {Qt::Key_Up, Qt::Key_Left, Qt::Key_Space, Qt::Key_Right, Qt::Key_Down, Qt::Key_Space})
    press(key);
  EXPECT_EQ(shown("tChar(0)"), " $10, $08, $00, $00, $00, $00, $00, $00");
  for (int i = 0; i < 9; ++i) {
    press(Qt::Key_Right);
    press(Qt::Key_Down);
  }
  EXPECT_EQ(focused(), cell(35));
  press(Qt::Key_Space);
  EXPECT_EQ(grid(), withoutBlanks("#.... .#... ..... ..... ..... ..... ..... ....#"));
  press(Qt::Key_Tab);
  EXPECT_EQ(focused(), "cInvertAll");
  press(Qt::Key_Backtab);  // back to the cell that was left
  EXPECT_EQ(focused(), cell(35));

  const QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(control(cell(8)));
  ASSERT_NE(heard, nullptr);
  EXPECT_EQ(fromQt(heard->text(QAccessible::Name)), "Row 2, column 2");
  EXPECT_EQ(heard->role(), QAccessible::CheckBox);
  EXPECT_TRUE(heard->state().checked);
  press(Qt::Key_Home);
  EXPECT_FALSE(QAccessible::queryAccessibleInterface(control(cell(7)))->state().checked);
}

TEST_F(LcdWindow, KeepsTheDataOfOtherSlotsWhileItIsClosed) {
  click(cell(0));
  click("oChar(1)");
  draw(arrow);
  name(1, "one", "One");
  click("oChar(2)");
  draw("##### ..... ..... ..... ..... ..... ..... .....");
  name(2, "two", "Two");
  click("oChar(1)");
  enter("tCommandUS", "77");
  current()->close();
  open("cCustomChar", "fCustomCharacter");
  EXPECT_EQ(shown("tCommandUS"), "2000");
  EXPECT_TRUE(isSelected("oChar(0)"));
  EXPECT_TRUE(allSlotsAreBlank());
  EXPECT_EQ(copied(), heading +
                          "LCDOUT $FE, $40, $01, $00, $00, $00, $00, $00, $00, $00 ' /"
                          "LCDOUT $FE, $50, $1F, $00, $00, $00, $00, $00, $00, $00 ' //");
  click(cell(4));
  EXPECT_EQ(copied(), heading +
                          "LCDOUT $FE, $40, $10, $00, $00, $00, $00, $00, $00, $00 ' /"
                          "LCDOUT $FE, $50, $1F, $00, $00, $00, $00, $00, $00, $00 ' //");
  click("oChar(2)");  // its picture is blank, and now its data too
  EXPECT_EQ(copied(), heading + "LCDOUT $FE, $40, $10, $00, $00, $00, $00, $00, $00, $00 ' //");
}

TEST_F(LcdWindow, EnablesBitsByTheirPorts) {
  for (const std::string wire : {"Data", "RS", "E", "RW"}) {
    const std::string bit = "Bit" + wire;
    enterText("Port" + wire, "");
    EXPECT_FALSE(control(bit)->isEnabled()) << wire;
    type("x");
    EXPECT_TRUE(control(bit)->isEnabled()) << wire;
    press(Qt::Key_Backspace);
    press(Qt::Key_Tab);
    EXPECT_FALSE(control(bit)->isEnabled()) << wire;
    pick("Port" + wire, 0);
    EXPECT_EQ(shown("Port" + wire), "PORTA");
    EXPECT_TRUE(control(bit)->isEnabled()) << wire;
    for (const char* typed : {"", "12"}) {
      enterText(bit, typed);
      press(Qt::Key_Tab);
      EXPECT_EQ(shown(bit), typed[0] == 0 && wire != "RW" ? "0" : typed) << wire;
    }
  }
}

TEST_F(LcdWindow, CopiesEverySettingAsItStands) {
  const char* const lists[] = {"PortData", "BitData", "PortRS", "BitRS", "PortE",
                               "BitE",     "PortRW",  "BitRW",  "Bits",  "Lines"};
  for (const std::string list : lists) enterText(list, list + "x ");
  enter("tCommandUS", "1234");
  enter("tDataUS", "");
  click("cInclude");
  EXPECT_EQ(copied(),
            "    '/    '    LCD setup/    '    =========/"
            "DEFINE LCD_DREG PortDatax      ' LCD data port/"
            "DEFINE LCD_DBIT BitDatax          ' LCD data starting bit/"
            "DEFINE LCD_RSREG PortRSx     ' LCD register select port/"
            "DEFINE LCD_RSBIT BitRSx         ' LCD register select bit/"
            "DEFINE LCD_EREG PortEx      ' LCD enable port/"
            "DEFINE LCD_EBIT BitEx          ' LCD enable bit/"
            "DEFINE LCD_RWREG PortRWx     ' LCD read~write port/"
            "DEFINE LCD_RWBIT BitRWx         ' LCD read~write bit/"
            "DEFINE LCD_BITS Bitsx          ' LCD data bus size/"
            "DEFINE LCD_LINES Linesx         ' Number lines on LCD/"
            "DEFINE LCD_COMMANDUS 1234 ' Command delay time in us/"
            "DEFINE LCD_DATAUS       ' Data delay time in us//");
}

TEST_F(LcdWindow, KeepsPastedTextsOnOneLine) {
  click(cell(0));
  paste(of("tName", 0), "a\nb");
  paste(of("tConstant", 0), "C\r\nD");
  EXPECT_EQ(slot(0), " $01, $00, $00, $00, $00, $00, $00, $00|a b|C  D|on");
  QGuiApplication::clipboard()->setText("PORT\nA");
  enterText("PortData", "");
  control<QComboBox>("PortData")->lineEdit()->paste();
  EXPECT_EQ(shown("PortData"), "PORT A");
}

TEST_F(LcdWindow, MovesBetweenTheDelaysOnEnter) {
  enter("tCommandUS", "12.a-345");
  EXPECT_EQ(shown("tCommandUS"), "1234");
  for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
    press(enter);
    EXPECT_EQ(focused(), "tDataUS");
    press(enter);
    EXPECT_EQ(focused(), "tCommandUS");
  }
  enter("tDataUS", "98765");
  EXPECT_EQ(shown("tDataUS"), "987");
  EXPECT_EQ(shown("tCommandUS"), "1234");
}

// The same window where another program can read the clipboard.
class OnDisplayLcdWindow : public LcdWindow {};

TEST_F(OnDisplayLcdWindow, CopiesItsTextForOtherPrograms) {
  draw("..... .#.#. .#.#. ..... #...# .###. ..... .....");
  name(0, "smiley ", "Smile");
  click("cCopyClip");
  EXPECT_EQ(clipboardSeenByAnotherProgram(),
            "    '\r\n"
            "    '    Custom character definition\r\n"
            "    '    ===========================\r\n"
            "LCDOUT $FE, $40, $00, $0A, $0A, $00, $11, $0E, $00, $00 ' smiley \r\n"
            "\r\n"
            "    '\r\n"
            "    '    Custom character constant(s)\r\n"
            "    '    ============================\r\n"
            "Smile                CON 0\r\n"
            "\r\n");
}

}  // namespace
}  // namespace tarnwick::tests
