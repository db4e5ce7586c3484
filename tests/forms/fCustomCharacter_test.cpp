#include "support/program.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QImage>

namespace tarnwick::tests {
namespace {

class LcdWindow : public Program {
protected:
  LcdWindow() { open("cCustomChar", "fCustomCharacter"); }

  static std::string cell(int pixel) { return "chk(" + std::to_string(pixel) + ")"; }
  static std::string of(const char* family, int slot) {
    return family + ("(" + std::to_string(slot) + ")");
  }
  QImage seen(const std::string& name) { return control(name)->grab().toImage(); }
};

TEST_F(LcdWindow, StandsAtItsPlaces) {
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

TEST_F(LcdWindow, TogglesOnceForEachClickOfAFastPair) {
  const QPoint place = control(cell(12))->mapTo(current(), QPoint(8, 8));
  QTest::mouseDClick(current()->windowHandle(), Qt::LeftButton, {}, place);
  EXPECT_EQ(shown("tChar(0)"), "");
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
  EXPECT_EQ(shown("tChar(0)"), " $10, $08, $00, $00, $00, $00, $00, $01");
  press(Qt::Key_Tab);
  EXPECT_EQ(focused(), "cInvertAll");
  press(Qt::Key_Backtab);  // back to the cell that was left
  EXPECT_EQ(focused(), cell(35));

  const QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(control(cell(8)));
  ASSERT_NE(heard, nullptr);
  EXPECT_EQ(ui::fromQt(heard->text(QAccessible::Name)), "Row 2, column 2");
  EXPECT_EQ(heard->role(), QAccessible::CheckBox);
  EXPECT_TRUE(heard->state().checked);
  press(Qt::Key_Home);
  EXPECT_FALSE(QAccessible::queryAccessibleInterface(control(cell(7)))->state().checked);
}

}  // namespace
}  // namespace tarnwick::tests
