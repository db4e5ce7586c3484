#include "support/program.h"

#include <QAbstractButton>
#include <QMessageBox>

#include <algorithm>

namespace tarnwick::tests {
namespace {

const std::string low5 =
    "0.000\r\n0.208\r\n0.417\r\n0.625\r\n0.833\r\n1.042\r\n1.250\r\n1.458\r\n"
    "1.667\r\n1.875\r\n2.083\r\n2.292\r\n2.500\r\n2.708\r\n2.917\r\n3.125\r\n";
const std::string spans5 = "0.000 - 3.125 Volt | 1.250 - 3.594 Volt";

class ComparatorWindow : public Program {
protected:
  ComparatorWindow() { open("Command1", "fComparator"); }

  std::string spans() { return shown("tLabelLowRange") + " | " + shown("tLabelHighRange"); }

  // The message is there, and once it is confirmed the user is back in the field, with everything
  // as it was.
  void expectRefusal(const std::string& typed) {
    ASSERT_EQ(messageShown(), "Quenby Tarnwick: Invalid Vdd") << typed;
    EXPECT_EQ(qobject_cast<QMessageBox*>(message())->icon(), QMessageBox::Critical);
    confirmMessage();
    EXPECT_EQ(messageShown() + focused(), "tVdd");
    EXPECT_EQ(shown("tVdd"), typed);
    EXPECT_EQ(shown("tVref"), low5);
    EXPECT_EQ(spans(), spans5);
    EXPECT_TRUE(isSelected("oVrefRange(1)"));
    EXPECT_FALSE(control<QAbstractButton>("oVrefRange(2)")->isDown());
  }
};

TEST_F(ComparatorWindow, FollowsRangeAndSupply) {
  click("oVrefRange(2)");
  EXPECT_EQ(spans(), spans5);
  EXPECT_TRUE(shown("tVref").starts_with("1.250\r\n1.406\r\n"));
  enterAndConfirm("tVdd", "3");
  EXPECT_EQ(spans(), "0.000 - 1.875 Volt | 0.750 - 2.156 Volt");
  EXPECT_TRUE(shown("tVref").starts_with("0.750\r\n0.844\r\n"));
  enter("tVdd", "5.25");
  click("oVrefRange(1)");  // leaving the field validates it, then the click acts
  EXPECT_EQ(messageShown(), "");
  EXPECT_TRUE(shown("tVref").ends_with("\r\n3.281\r\n"));
}

TEST_F(ComparatorWindow, RefusesAWrongSupplyWithOneMessage) {
  for (const char* typed : {"5.26", "0", ""}) {
    for (const Qt::Key leaving : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab}) {
      enter("tVdd", typed);
      press(leaving);
      expectRefusal(typed);
    }
    for (const char* clicked : {"oVrefRange(2)", "oVrefRange(1)", "tVref"}) {
      enter("tVdd", typed);
      click(clicked);
      expectRefusal(typed);
    }
  }
}

TEST_F(ComparatorWindow, GivesThePointBackAfterTheMessage) {
  enter("tVdd", "5.9.");
  press(Qt::Key_Return);
  expectRefusal("5.9");
  type(".");
  EXPECT_EQ(shown("tVdd"), "5.9.");
  enter("tVdd", "4");
  press(Qt::Key_Tab);
  enter("tVdd", "4.5");  // entering the field gives it back too
  EXPECT_EQ(shown("tVdd"), "4.5");
}

TEST_F(ComparatorWindow, AsksForNothingWhenTheUserTurnsAwayOrCloses) {
  enter("tVdd", "9");
  open("cTimer", "fTimer");
  EXPECT_EQ(messageShown(), "");
  turnTo("fComparator");
  EXPECT_EQ(messageShown() + focused(), "tVdd");
  current()->close();
  turnTo("fMain");
  EXPECT_EQ(messageShown(), "");
}

TEST_F(ComparatorWindow, TakesAnyPastedText) {
  const int width = current()->width();
  for (const char* pasted : {"-1E999", "1E-9", "-4"}) {
    paste("tVdd", pasted);
    press(Qt::Key_Return);
    EXPECT_EQ(std::ranges::count(shown("tVref"), '\n'), 16) << pasted;
    EXPECT_EQ(current()->width(), width);
  }
  EXPECT_EQ(spans(), "0.000 - -2.500 Volt | -1.000 - -2.875 Volt");
}

}  // namespace
}  // namespace tarnwick::tests
