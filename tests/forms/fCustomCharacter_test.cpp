#include "support/look.h"
#include "support/program.h"

#include <QAccessible>
#include <QComboBox>

namespace tarnwick::tests {
namespace {

class LcdWindow : public Program {
protected:
  LcdWindow() { open("cCustomChar", "fCustomCharacter"); }

  static std::string of(const std::string& family, int index) {
    return family + "(" + std::to_string(index) + ")";
  }
  QRect place(const std::string& name) {
    return {control(name)->mapTo(current(), QPoint(0, 0)), control(name)->size()};
  }
};

TEST_F(LcdWindow, StandsAtItsPlaces) {
  const QRect topLeft(place("chk(4)").topLeft(), QSize(29, 29));
  for (int pixel = 0; pixel < 40; ++pixel) {
    const auto [row, column] = std::pair(pixel / 5, 4 - pixel % 5);
    EXPECT_EQ(place(of("chk", pixel)), topLeft.translated(28 * column, 28 * row)) << pixel;
    auto* heard = QAccessible::queryAccessibleInterface(control(of("chk", pixel)));
    EXPECT_EQ(heard->text(QAccessible::Name),
              QString("Row %1, column %2").arg(row + 1).arg(column + 1));
  }
  EXPECT_EQ(place("Char7"), place("Char0").translated(0, 7 * 32));
  EXPECT_EQ(place("Char7").size(), QSize(19, 29));
  for (const QPoint edge : {QPoint(0, 0), QPoint(18, 5), QPoint(9, 28), QPoint(0, 28)})
    EXPECT_EQ(onScreen(control("Char0")).pixelColor(edge), QColor(Qt::black));
  EXPECT_EQ(place("Preview").size(), QSize(19, 29));
  for (const auto& [name, left] : {std::pair("tLeft", -41), {"tRight", 17}}) {
    EXPECT_EQ(place(name).topLeft(), place("Preview").topLeft() + QPoint(left, 3));
    const auto* text = control<QLineEdit>(name);
    EXPECT_EQ(text->font().pointSize(), 18);
    EXPECT_LE(text->fontMetrics().horizontalAdvance("WW") + 4, text->width());
    EXPECT_EQ(onScreen(control(name)).pixelColor(1, 1), QColor(0, 128, 0));
    EXPECT_FALSE(text->focusPolicy() & Qt::TabFocus);
  }
}

TEST_F(LcdWindow, KeepsTheTextsOfEachSlot) {
  for (int slot = 0; slot < 8; ++slot) {
    click(of("oChar", slot));
    click(of("chk", slot));
  }
  click("oChar(0)");
  for (int slot = 0; slot < 8; ++slot)
    for (const char* family : {"tName", "tConstant"}) enter(of(family, slot), of(family, slot));
  for (int selected = 8; selected-- > 0;) {
    click(of("oChar", selected));
    for (int slot = 0; slot < 8; ++slot)
      for (const char* family : {"tName", "tConstant"})
        EXPECT_EQ(shown(of(family, slot)), of(family, slot)) << selected;
  }
}

TEST_F(LcdWindow, TakesATypedPortAsItStands) {
  for (const char* typed : {"po", "portc", "PORTC", "four"})
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Tab}) {
      enter("PortData", typed);
      press(key);
      EXPECT_EQ(shown("PortData"), typed);
    }
  EXPECT_EQ(control<QComboBox>("PortData")->count(), 10);
}

TEST_F(LcdWindow, TogglesOnceForEachClickOfAFastPair) {
  QTest::mouseDClick(current()->windowHandle(), Qt::LeftButton, {}, place("chk(12)").center());
  EXPECT_EQ(shown("tChar(0)"), "");
  for (int i = 0; i < 3; ++i) click("chk(12)");
  EXPECT_EQ(shown("tChar(0)"), " $00, $00, $04, $00, $00, $00, $00, $00");
}

TEST_F(LcdWindow, IsDrawnByKeys) {
  control("uTright")->setFocus();
  QList<Qt::Key> keys{Qt::Key_Tab,   Qt::Key_Up,   Qt::Key_Left, Qt::Key_Space,
                      Qt::Key_Right, Qt::Key_Down, Qt::Key_Space};
  for (int i = 0; i < 9; ++i) keys << Qt::Key_Right << Qt::Key_Down;
  // From the corner to the next control, back to the cell that was left
  for (const Qt::Key key : keys << Qt::Key_Tab << Qt::Key_Backtab << Qt::Key_Space) press(key);
  EXPECT_EQ(focused(), "chk(35)");
  EXPECT_EQ(shown("tChar(0)"), " $10, $08, $00, $00, $00, $00, $00, $01");
}

}  // namespace
}  // namespace tarnwick::tests
