#include "support/program.h"

#include <QAbstractButton>

namespace tarnwick::tests {
namespace {

class Ser2Window : public Program {
protected:
  Ser2Window() { open("cSerinSerout2", "fSerinSerout2"); }

  std::string mode() { return shown("tMode"); }
  int left(const char* name) { return control(name)->mapTo(current(), QPoint(0, 0)).x(); }
  // Label and field at their places of 1680 and 2400 twips, or beside the button at 480 and 1200.
  void expectAlone() {
    EXPECT_EQ(std::pair(left("tLabel"), left("tMode")), std::pair(112, 160));
    EXPECT_FALSE(control("cCopyClip")->isVisible());
  }
  void expectBesideButton() {
    EXPECT_EQ(std::pair(left("tLabel"), left("tMode")), std::pair(32, 80));
    EXPECT_TRUE(control("cCopyClip")->isVisible());
    EXPECT_GT(left("cCopyClip"), left("tMode") + control("tMode")->width());
  }
};

TEST_F(Ser2Window, AddsTheOptions) {
  click("oOutput(2)");
  EXPECT_EQ(mode(), "32852");
  click("oOutput(1)");
  click("oConversion(2)");
  click("oParity(2)");
  EXPECT_EQ(mode(), "24660");
  expectAlone();
}

TEST_F(Ser2Window, MovesTheModeAsideForOddParity) {
  click("oParity(0)");
  EXPECT_EQ(mode(), "8276");
  expectBesideButton();
  pick("BaudDropList", 8);
  EXPECT_EQ(mode(), "8189");
  expectBesideButton();
  click("oParity(2)");
  expectAlone();
}

TEST_F(Ser2Window, LeavesTheButtonAloneWithoutAMode) {
  for (const bool odd : {false, true}) {
    click(odd ? "oParity(0)" : "oParity(1)");
    paste("tBaud", "1");  // a bit time of 999980 us
    press(Qt::Key_Return);
    click(odd ? "oParity(1)" : "oParity(0)");
    EXPECT_EQ(mode(), "");
    odd ? expectBesideButton() : expectAlone();
    pick("BaudDropList", 5);
    odd ? expectAlone() : expectBesideButton();
  }
}

TEST_F(Ser2Window, ChangesTheUnitBeforeTheRateOnAChoice) {
  click("oParity(0)");
  enterAndConfirm("tBaud", "57.6");
  click("cKBaud");
  click("oParity(1)");
  expectBesideButton();
  pick("BaudDropList", 8);  // 57.6 Bd have a mode on the way, 57600 Bd have none
  EXPECT_EQ(mode(), "");
  expectAlone();
}

TEST_F(Ser2Window, TakesTypedAndChosenRates) {
  enterAndConfirm("tBaud", "2.4");
  EXPECT_EQ(focused(), "cKBaud");
  press(Qt::Key_Space);
  EXPECT_EQ(mode(), "396");
  enter("tBaud", "");
  press(Qt::Key_Tab);
  EXPECT_EQ(shown("tBaud") + "," + mode(), "9600,");  // 9600 kBd
  pick("BaudDropList", 5);                            // current already
  EXPECT_FALSE(isSelected("cKBaud"));
  EXPECT_EQ(shown("tBaud") + "," + mode(), "9600,84");
  enter("tBaud", "300");
  EXPECT_EQ(mode(), "84");  // not before it is validated
  press(Qt::Key_Backtab);
  EXPECT_EQ(mode(), "3313");
  for (const char* zero : {"0", ".", "0.00"}) {
    enterAndConfirm("tBaud", zero);
    EXPECT_EQ(shown("tBaud") + "," + mode(), "9600,84") << zero;
  }
  enter("tBaud", "1.");  // the allowance is renewed when the field is entered, not by calculating
  press(Qt::Key_Backspace);
  control<QAbstractButton>("oParity(2)")->setChecked(true);
  type(".5");
  EXPECT_EQ(shown("tBaud"), "15");
  press(Qt::Key_Tab);
  enter("tBaud", "1.5");
  EXPECT_EQ(shown("tBaud"), "1.5");
}

class OnDisplaySer2Window : public Ser2Window {};

TEST_F(OnDisplaySer2Window, CopiesTheDefineOfOddParity) {
  click("oParity(0)");
  click("cCopyClip");
  EXPECT_EQ(clipboardSeenByAnotherProgram(), "DEFINE SER2_ODD 1 ' Set odd parity mode");
}

}  // namespace
}  // namespace tarnwick::tests
