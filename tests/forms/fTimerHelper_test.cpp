#include "support/program.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSlider>

namespace tarnwick::tests {
namespace {

class TimerHelperWindow : public Program {
protected:
  TimerHelperWindow() { open("cTimerHelper", "fTimerHelper"); }

  // The results of one width with their line ends: columns, then the best match.
  std::string results(const std::string& width) {
    return shown("tPreload" + width) + "|" + shown("tPrescaler" + width) + "|" +
           shown("tCalc" + width) + "|" + shown("tERR" + width) + "|" + best(width);
  }
  std::string best(const std::string& width) {
    return shown("tfPreload" + width) + " " + shown("tfPrescaler" + width) + " " +
           shown("tfERR" + width);
  }
  std::string unit() {
    for (const char* option : {"omSecuSec(0)", "omSecuSec(1)", "omSecuSec(2)", "omSecuSec(3)"})
      if (isSelected(option)) return ui::fromQt(control<QRadioButton>(option)->text());
    return "none";
  }
  std::string delay() { return shown("tDelay") + " " + unit(); }
};

const char* const none = "||||  ";
TEST_F(TimerHelperWindow, AnswersTypedQuestions) {
  enter("tDelay", "1");
  click("omSecuSec(1)");
  EXPECT_EQ(shown("tPreload8"), "7\r\n131\r\n193\r\n224\r\n240\r\n248\r\n252\r\n");
  EXPECT_EQ(best("8") + " | " + best("16"), "7 4 0.299 | 64543 1 0.0");

  enterAndConfirm("tOSC", "20");
  enterAndConfirm("tReload", "1");
  enter("tDelay", "50");
  click("omSecuSec(2)");
  EXPECT_EQ(results("8"), none);
  EXPECT_EQ(best("16"), "15536 2 0.001");
  EXPECT_TRUE(shown("tPrescaler16").starts_with("1:2\r\n"));
}

TEST_F(TimerHelperWindow, MovesTheUnitWithTheValue) {
  const char* const Hz = "omSecuSec(2)";
  const char* const KHz = "omSecuSec(3)";
  struct Case {
    const char* option;
    const char* typed;
    const char* delay;
  };
  for (const Case& c :
       {Case{Hz, "1500", "1.5 KHz"}, Case{KHz, "0.5", "500 Hz"}, Case{Hz, "999.9", "999.9 Hz"},
        Case{Hz, "1000", "1 KHz"}, Case{KHz, "1", "1 KHz"},
        Case{KHz, "0.9999999999999999", "1 KHz"}, Case{KHz, "0.00000001", "1E-05 Hz"},
        Case{Hz, "0", "1 Hz"}, Case{KHz, "", "1 KHz"}}) {
    click("omSecuSec(0)");
    enterAndConfirm("tDelay", "10");
    click(c.option);
    enterAndConfirm("tDelay", c.typed);
    const std::string once = results("8") + results("16");
    EXPECT_EQ(delay(), c.delay) << c.typed;
    press(Qt::Key_Return);
    EXPECT_EQ(delay() + results("8") + results("16"), c.delay + once) << c.typed;
  }
  click(Hz);
  enterAndConfirm("tDelay", "20000");
  EXPECT_EQ(delay() + ": " + best("8"), "20 KHz: 213 1 0.0");
  EXPECT_TRUE(shown("tCalc8").starts_with("20.0 KHz\r\n"));
  click("omSecuSec(0)");
  enterAndConfirm("tDelay", "5000");  // periods stay
  EXPECT_EQ(delay(), "5000 uSec");
  click("omSecuSec(2)");
  EXPECT_EQ(delay(), "5 KHz");
}

TEST_F(TimerHelperWindow, KeepsTheLineOfAPreloadOfZero) {
  enterAndConfirm("tReload", "1");
  enterAndConfirm("tDelay", "256.5");
  EXPECT_EQ(best("8"), "0 1 0.195");
  for (const char* column : {"tPreload8", "tPrescaler8", "tCalc8", "tERR8"})
    EXPECT_EQ(control<QPlainTextEdit>(column)->blockCount(), 9) << column;
  EXPECT_TRUE(shown("tPreload8").starts_with("\r\n128\r\n"));
  EXPECT_TRUE(control<QPlainTextEdit>("tPreload8")->toPlainText().startsWith("\n128\n"));
}

TEST_F(TimerHelperWindow, CorrectsTheReload) {
  struct Case {
    const char* typed;
    const char* shown;
  };
  for (const Case& c : {Case{"", "1"}, Case{"16", "15"}, Case{"256", "15"},
                        Case{"99999999999", "15"}, Case{"09", "9"}}) {
    for (const Qt::Key leaving : {Qt::Key_Return, Qt::Key_Tab}) {
      enterAndConfirm("tDelay", "100");
      enter("tReload", c.typed);
      press(leaving);
      EXPECT_EQ(shown("tReload"), c.shown) << c.typed;
      EXPECT_EQ(control<QSlider>("HScroll1")->value(), std::stoi(c.shown)) << c.typed;
      EXPECT_EQ(best("8"), std::to_string(156 + std::stoi(c.shown)) + " 1 0.0");
      EXPECT_NE(focused(), "tDelay");
    }
  }
  for (const auto& [pasted, text] : {std::pair{"2.5", "2"}, std::pair{"-3", "1"}}) {
    paste("tReload", pasted);
    press(Qt::Key_Return);
    EXPECT_EQ(shown("tReload"), text);
  }
}

TEST_F(TimerHelperWindow, GoesFromTheReloadToTheDelayWithoutA16BitMatch) {
  enterAndConfirm("tDelay", "5");  // shorter than the reload of 7 cycles
  EXPECT_EQ(results("8"), none);
  EXPECT_EQ(results("16"), none);
  for (const Qt::Key leaving : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab}) {
    enter("tReload", "9");
    press(leaving);
    EXPECT_EQ(focused(), "tDelay");
    EXPECT_EQ(shown("tReload"), "9");
  }
  enterAndConfirm("tReload", "2");  // the slider moves, its step finds matches: the focus stays
  EXPECT_EQ(best("16"), "65533 1 0.0");
  EXPECT_EQ(focused(), "tReload");
}

TEST_F(TimerHelperWindow, FollowsItsSlider) {
  control("HScroll1")->setFocus();
  press(Qt::Key_End);
  EXPECT_EQ(shown("tReload") + results("8"), "15" + std::string(none));
  press(Qt::Key_Home);
  EXPECT_EQ(shown("tReload") + " " + best("8"), "1 247 1 0.0");
}

TEST_F(TimerHelperWindow, CorrectsOscillatorAndDelay) {
  paste("tDelay", "-1E999");
  click("omSecuSec(3)");
  EXPECT_EQ(delay(), "1 KHz");
  enterAndConfirm("tOSC", "65");
  confirmMessage();
  EXPECT_EQ(shown("tOSC") + focused(), "64tOSC");
  paste("tOSC", "-5");
  press(Qt::Key_Return);
  EXPECT_EQ(shown("tOSC") + results("8") + results("16"), std::string("-5") + none + none);
}

TEST_F(TimerHelperWindow, RecalculatesOnEnteringTheOscillatorAfterAMatch) {
  for (const auto& [typed, best8] : {std::pair{"20", "233 1 0.0"}, std::pair{"3", "  "}}) {
    enterAndConfirm("tDelay", typed);
    click("tCalc8");
    control<QLineEdit>("tDelay")->setText("30");  // no step has looked at it yet
    click("tOSC");
    EXPECT_EQ(best("8"), best8);
  }
}

TEST_F(TimerHelperWindow, RenewsThePointOnEntering) {
  for (const char* field : {"tOSC", "tDelay"}) {
    enter(field, "1.2.3");
    press(Qt::Key_Backspace);
    type(".");
    EXPECT_EQ(shown(field), "1.2") << field;
    click("tCalc8");
    enter(field, "2.5");
    EXPECT_EQ(shown(field), "2.5") << field;
  }
}

}  // namespace
}  // namespace tarnwick::tests
