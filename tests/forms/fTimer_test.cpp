#include "support/program.h"

#include <QSlider>

#include <limits>

namespace tarnwick::tests {
namespace {

class TimerWindow : public Program {
protected:
  TimerWindow() { open("cTimer", "fTimer"); }

  // Fosc, Ticks, Interrupt each, Frequency as one text.
  std::string results() {
    return shown("tFosc") + " | " + shown("tTicks") + " | " + shown("tResults") + " | " +
           shown("tFreq");
  }
  int position(const std::string& slider) { return control<QSlider>(slider)->value(); }
};

TEST_F(TimerWindow, AnswersTypedQuestions) {
  click("oPrescaller(8)");
  enterAndConfirm("tReload", "1");
  EXPECT_EQ(results(), "1.0 MHz | 1.0 uSec | 65.537 mSec | 15.259 Hz");

  click("oType(2)");
  click("oPrescaller(3)");
  enterAndConfirm("tOSC", "20");
  enterAndConfirm("tPreLoad", "3036");
  EXPECT_EQ(results(), "5.0 MHz | 0.2 uSec | 100.0002 mSec | 10.0 Hz");
}

TEST_F(TimerWindow, ShowsTheBoundsOfItsUnits) {
  click("oPrescaller(2)");
  enterAndConfirm("tPreLoad", "8");  // 4 x 248 + 8 = 1000 us
  enterAndConfirm("tReload", "8");
  EXPECT_EQ(results(), "1.0 MHz | 1.0 uSec | 1.0 mSec | 1000.0 Hz");
}

TEST_F(TimerWindow, CorrectsWhatIsTypedAndLeft) {
  struct Case {
    const char* option;
    const char* field;
    const char* typed;
    const char* shown;
    const char* slider;
    int position;
  };
  for (const Case& c : {Case{"oType(1)", "tPreLoad", "300", "255", "scrollpreload", 255},
                        Case{"oType(1)", "tPreLoad", "00", "0", "scrollpreload", 0},
                        Case{"oType(1)", "tPreLoad", "", "0", "scrollpreload", 0},
                        Case{"oType(2)", "tPreLoad", "65536", "65535", "scrollpreload", 32767},
                        Case{"oType(2)", "tPreLoad", "32768", "32768", "scrollpreload", 0},
                        Case{"oType(2)", "tPreLoad", "007", "7", "scrollpreload", -32761},
                        Case{"oType(1)", "tReload", "0", "1", "scrollreload", 1},
                        Case{"oType(1)", "tReload", "16", "15", "scrollreload", 15},
                        Case{"oType(1)", "tReload", "99999999999", "15", "scrollreload", 15},
                        Case{"oType(1)", "tReload", "07", "7", "scrollreload", 7}}) {
    click(c.option);
    for (const Qt::Key leaving : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab}) {
      enter(c.field, c.typed);
      press(leaving);
      EXPECT_EQ(shown(c.field), c.shown) << c.field << " " << c.typed;
      EXPECT_EQ(position(c.slider), c.position) << c.field << " " << c.typed;
    }
  }
}

TEST_F(TimerWindow, TakesAnyPastedText) {
  paste("tPreLoad", "-5");
  press(Qt::Key_Return);
  EXPECT_EQ(shown("tPreLoad"), "0");
  paste("tPreLoad", "&H1F");
  press(Qt::Key_Return);
  EXPECT_EQ(shown("tPreLoad"), "31");
  paste("tReload", "-1E999");
  press(Qt::Key_Return);
  EXPECT_EQ(shown("tReload"), "1");
  paste("tReload", "2.5");
  press(Qt::Key_Return);
  EXPECT_EQ(shown("tReload"), "2");
  paste("tOSC", "-5");
  press(Qt::Key_Return);
  EXPECT_EQ(shown("tOSC"), "-5");
  paste("tOSC", "1E-300");
  press(Qt::Key_Return);
  EXPECT_EQ(shown("tOSC"), "1E-300");
  EXPECT_EQ(shown("tFosc"), "0.0 MHz");
}

TEST_F(TimerWindow, KeepsWidthPrescalerAndPreloadInStep) {
  for (const char* preload : {"0", "255", "32768", "33023", "65535"}) {
    click("oType(2)");
    click("oPrescaller(5)");
    enterAndConfirm("tPreLoad", preload);
    EXPECT_EQ(shown("tPreLoad"), preload);
    click("oType(1)");
    EXPECT_EQ(shown("tPreLoad"), "0") << preload;
    EXPECT_EQ(position("scrollpreload"), 0) << preload;
    EXPECT_TRUE(isSelected("oPrescaller(5)"));
    EXPECT_EQ(shown("tResults"), "8.199 mSec");  // 32 x 256 + 7
  }
  for (const char* preload : {"0", "128", "255"}) {
    click("oType(1)");
    click("oPrescaller(5)");
    enterAndConfirm("tPreLoad", preload);
    click("oType(2)");
    EXPECT_EQ(shown("tPreLoad"), "0") << preload;
    EXPECT_EQ(position("scrollpreload"), -32768) << preload;
    EXPECT_TRUE(isSelected("oPrescaller(0)"));
    EXPECT_EQ(shown("tResults"), "65.543 mSec");
  }
}

TEST_F(TimerWindow, ClickingTheSelectedWidthChangesNothing) {
  enterAndConfirm("tPreLoad", "100");
  click("oType(1)");
  EXPECT_EQ(shown("tPreLoad"), "100");
}

TEST_F(TimerWindow, FollowsItsSliders) {
  control("scrollpreload")->setFocus();
  press(Qt::Key_End);
  EXPECT_EQ(shown("tPreLoad"), "255");
  EXPECT_EQ(shown("tResults"), "8.0 uSec");
  press(Qt::Key_Left);
  EXPECT_EQ(shown("tPreLoad"), "254");

  auto* reload = control<QSlider>("scrollreload");
  const QPoint start(reload->width() * 6 / 14, reload->height() / 2);
  const auto at = [&](QPoint place) { return reload->mapTo(current(), place); };
  QWindow* target = current()->windowHandle();
  QTest::mousePress(target, Qt::LeftButton, {}, at(start));
  QTest::mouseMove(target, at(QPoint(reload->width() - 2, start.y())));
  EXPECT_EQ(shown("tReload"), "15");  // in the middle of the drag
  QTest::mouseMove(target, at(QPoint(1, start.y())));
  EXPECT_EQ(shown("tReload"), "1");
  QTest::mouseRelease(target, Qt::LeftButton, {}, at(QPoint(1, start.y())));
  EXPECT_EQ(shown("tResults"), "3.0 uSec");
}

TEST_F(TimerWindow, FiltersKeysByTheFieldsClass) {
  enter("tOSC", "-1.2.,5e");
  EXPECT_EQ(shown("tOSC"), "1.25");
  enter("tOSC", "1.");  // the allowance is used up until the field is entered anew
  EXPECT_EQ(shown("tOSC"), "1");
  press(Qt::Key_Tab);
  enter("tOSC", "3.5");
  press(Qt::Key_Return);
  EXPECT_EQ(shown("tOSC"), "3.5");
  EXPECT_EQ(focused(), "tOSC");
  enter("tPreLoad", "1.2");
  EXPECT_EQ(shown("tPreLoad"), "12");
}

}  // namespace
}  // namespace tarnwick::tests
