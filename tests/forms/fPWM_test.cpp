#include "support/program.h"

#include <QPlainTextEdit>
#include <QSlider>

namespace tarnwick::tests {
namespace {

const char* const columns[] = {"tCalc",       "tPrescaler", "tResolution", "trMaxPR2", "trDutyStep",
                               "tPrescaler2", "tPR2",       "tDecimal",    "tCalcDuty"};

class PwmWindow : public Program {
protected:
  PwmWindow() { open("cPWM", "fPWM"); }

  std::string texts(std::initializer_list<const char*> names) {
    std::string all;
    for (const char* name : names) all += shown(name) + "|";
    return all;
  }
  std::string duty() { return texts({"tDuty", "tDecimal", "tCalcDuty"}); }
  int position() { return control<QSlider>("scrollduty")->value(); }

  // No column has a line and no duty can be set.
  bool isEmpty() {
    bool empty = !control("tDuty")->isEnabled() && !control("scrollduty")->isEnabled();
    for (const char* column : columns) empty = empty && shown(column).empty();
    return empty;
  }
};

TEST_F(PwmWindow, EmptiesItsResultsWhenNothingMatches) {
  click("oHzKhz(0)");
  EXPECT_TRUE(isEmpty());
  EXPECT_EQ(focused(), "tFreq");
  EXPECT_EQ(shown("tMinFreq"), "244.141 Hz");
  type("00");  // behind the "1": the focus is there, and 100 Hz match as little
  press(Qt::Key_Return);
  EXPECT_TRUE(isEmpty());
  EXPECT_EQ(focused(), "tFreq");
  enterAndConfirm("tFreq", "1000");
  EXPECT_EQ(shown("tCalc"), " 1000.0 Hz\r\n 992.063 Hz\r\n");
  EXPECT_TRUE(control("tDuty")->isEnabled() && control("scrollduty")->isEnabled());
  click("oHzKhz(1)");  // above the range: 1000 KHz give a match with a PR2 of 0 only
  EXPECT_EQ(shown("tPR2"), "  0\r\n");
  enterAndConfirm("tFreq", "1001");
  EXPECT_TRUE(isEmpty());
}

TEST_F(PwmWindow, GoesToTheFrequencyFromTheOscillator) {
  for (const Qt::Key leaving : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab}) {
    enter("tOSC", "20");
    press(leaving);
    EXPECT_EQ(focused(), "tFreq");
    EXPECT_EQ(texts({"tOSC", "tMinFreq", "tMaxFreq"}), "20|1.221 KHz|2.5 MHz|");
    EXPECT_TRUE(isEmpty());
  }
  enterAndConfirm("tFreq", "2");
  for (const char* target : {"tDuty", "scrollduty", "tCalc"}) {
    enter("tOSC", "8");
    click(target);
    EXPECT_EQ(focused(), "tFreq") << target;
    EXPECT_EQ(shown("tPR2"), "  249\r\n  62\r\n");
  }
  enter("tOSC", "4");
  click("oHzKhz(0)");
  EXPECT_EQ(texts({"tOSC", "tMinFreq"}), "4|244.141 Hz|");
  EXPECT_TRUE(isSelected("oHzKhz(0)"));
}

TEST_F(PwmWindow, WarnsOnceOfAFastOscillator) {
  for (const Qt::Key leaving : {Qt::Key_Return, Qt::Key_Tab}) {
    enter("tOSC", "100");
    press(leaving);
    confirmMessage();
    EXPECT_EQ(message(), nullptr);
    EXPECT_EQ(focused() + texts({"tOSC", "tMinFreq"}), "tFreq64|3.906 KHz|");
  }
}

TEST_F(PwmWindow, LetsTheUserLeaveAFrequencyThatMatchesNothing) {
  enter("tFreq", "0.1");
  click("tOSC");
  EXPECT_TRUE(isEmpty());
  EXPECT_EQ(focused(), "tOSC");
  enterAndConfirm("tFreq", "1");
  for (const char* target : {"tDuty", "scrollduty"}) {  // they cannot take the focus
    enter("tFreq", "0.1");
    click(target);
    EXPECT_TRUE(isEmpty());
    EXPECT_EQ(focused(), "tFreq");
    enterAndConfirm("tFreq", "2");
    enter("tFreq", "3");
    click(target);
    EXPECT_EQ(focused(), target);
    EXPECT_TRUE(shown("tCalc").starts_with(" 3.012 KHz")) << shown("tCalc");
  }
}

TEST_F(PwmWindow, CorrectsTheFrequency) {
  for (const char* text : {"0", "", ".", "-7"}) {
    paste("tFreq", text);
    press(Qt::Key_Return);
    EXPECT_EQ(texts({"tFreq", "tPR2"}), "1|  249\r\n  62\r\n|") << text;
  }
}

TEST_F(PwmWindow, RenewsThePointsWithEveryRecalculation) {
  for (const char* field : {"tFreq", "tOSC"}) {
    enter(field, "1.");
    press(Qt::Key_Backspace);
    type(".5.");
    EXPECT_EQ(shown(field), "15");
    click("oHzKhz(1)");  // selected already: leaving the field alone renews
    enter(field, "1.5");
    EXPECT_EQ(shown(field), "1.5");
  }
}

TEST_F(PwmWindow, KeepsDutyFieldSliderAndColumnsInStep) {
  struct Case {
    const char* typed;
    const char* duty;
    int position;
  };
  const std::string full = "100|1000\r\n250\r\n|100.0 %\r\n99.21 %\r\n|";
  const std::string none = "0|0\r\n0\r\n|.0 %\r\n.0 %\r\n|";
  for (const Case& c :
       {Case{"100", full.c_str(), 100}, Case{"0", none.c_str(), 0}, Case{"150", full.c_str(), 100},
        Case{"", none.c_str(), 0}, Case{"99999999999999", full.c_str(), 100},
        Case{"25", "25|250\r\n63\r\n|25.0 %\r\n25.0 %\r\n|", 25}}) {
    for (const Qt::Key leaving : {Qt::Key_Return, Qt::Key_Tab}) {
      enterAndConfirm("tDuty", "50");
      enter("tDuty", c.typed);
      press(leaving);
      EXPECT_EQ(duty(), c.duty) << c.typed;
      EXPECT_EQ(position(), c.position) << c.typed;
    }
  }
  control("scrollduty")->setFocus();
  press(Qt::Key_End);
  EXPECT_EQ(duty(), full);
  press(Qt::Key_Home);
  EXPECT_EQ(duty(), none);
  press(Qt::Key_Right);
  EXPECT_EQ(shown("tDuty"), "1");
  enter("tDuty", "3.-7e");
  EXPECT_EQ(shown("tDuty"), "37");
  enterAndConfirm("tDuty", "0");
  paste("tDuty", "-5");
  press(Qt::Key_Return);
  EXPECT_EQ(duty(), none);
}

TEST_F(PwmWindow, LeavesTheDutyWithoutAnOscillator) {
  const std::string before = texts({"tDecimal", "tCalcDuty"});
  enter("tOSC", "");
  control<QSlider>("scrollduty")->setValue(20);  // as the wheel does, which takes no focus
  EXPECT_EQ(shown("tDuty"), "20");
  EXPECT_EQ(texts({"tDecimal", "tCalcDuty"}), before);
  type("8");
  control<QSlider>("scrollduty")->setValue(30);
  EXPECT_EQ(shown("tDecimal"), "600\r\n151\r\n");
}

}  // namespace
}  // namespace tarnwick::tests
