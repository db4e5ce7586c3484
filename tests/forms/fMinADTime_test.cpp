#include "support/program.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>

namespace tarnwick::tests {
namespace {

const std::string defines10 =
    "DEFINE ADC_BITS 10     ' ADCIN resolution  (Bits)\r\n"
    "DEFINE ADC_CLOCK 2     ' ADC clock source  (Fosc/32)\r\n"
    "DEFINE ADC_SAMPLEUS 11 ' ADC sampling time (uSec)";
const std::string atLoad = "Fosc/32 (ADCS=010) | 8 Tad | 11 uSec";

class MinADTimeWindow : public Program {
protected:
  MinADTimeWindow() { open("cAD", "fMinADTime"); }

  // Clock, acquisition in Tad and in us as one text.
  std::string results() {
    return shown("tADClock") + " | " + shown("tMinTad") + " | " + shown("tMinTaq");
  }
};
using OnDisplayMinADTime = MinADTimeWindow;

TEST_F(OnDisplayMinADTime, HandsItsDefinesToOtherPrograms) {
  click("cCopyClip");
  EXPECT_EQ(clipboardSeenByAnotherProgram(), defines10);
}

TEST_F(MinADTimeWindow, AnswersEveryQuestion) {
  struct Case {
    const char* oscillator;
    const char* kOhm;
    const char* results;
  };
  for (const Case& c : {Case{"4", "10", "Fosc/8 (ADCS=001) | 6 Tad | 11 uSec"},
                        Case{"1.3", "10", "Fosc/2 (ADCS=000) | 8 Tad | 11 uSec"},
                        Case{"1", "1", "Fosc/2 (ADCS=000) | 0 Tad | 3 uSec"},
                        Case{"40", "2.5", "Fosc/64 (ADCS=110) | 4 Tad | 4 uSec"},
                        Case{"41", "2.5", "Frc (ADCS=111) | 0 Tad | 4 uSec"},
                        Case{"20", "1000", "Fosc/32 (ADCS=010) | 64 Tad | 842 uSec"},
                        Case{"20", "-5", "Fosc/32 (ADCS=010) | 0 Tad | -2 uSec"},
                        Case{"20", "1E999", "Fosc/32 (ADCS=010) | 64 Tad | "},
                        Case{"-1E999", "&H0A Ohm", "Fosc/2 (ADCS=000) | 0 Tad | 11 uSec"}}) {
    paste("tOSC", c.oscillator);
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "tImpedance");
    paste("tImpedance", c.kOhm);
    press(Qt::Key_Enter);
    EXPECT_EQ(focused(), "cKohm");
    EXPECT_EQ(results(), c.results) << c.oscillator << " MHz, " << c.kOhm << " K Ohm";
  }
}

TEST_F(MinADTimeWindow, CorrectsWhatIsTypedAndLeft) {
  struct Case {
    const char* field;
    const char* typed;
    const char* shown;
  };
  for (const Case& c : {Case{"tImpedance", "", "1"}, Case{"tImpedance", "0.0", "1"},
                        Case{"tImpedance", "2.50", "2.50"}, Case{"tImpedance", ".-.7", ".7"},
                        Case{"tOSC", ".", "1"}, Case{"tOSC", "4.00.0", "4"}}) {
    for (const Qt::Key leaving : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab}) {
      enter(c.field, c.typed);
      press(leaving);
      EXPECT_EQ(shown(c.field), c.shown) << c.field << " " << c.typed;
    }
  }
  for (const Qt::Key leaving : {Qt::Key_Return, Qt::Key_Tab}) {
    enter("tOSC", "100");
    press(leaving);
    EXPECT_EQ(messageShown(), "Oscillator speed to high: As now maximum allowed is 64 MHz");
    confirmMessage();
    EXPECT_EQ(messageShown() + shown("tOSC") + focused(), "64tImpedance");
    EXPECT_EQ(shown("tADClock"), "Frc (ADCS=111)");
  }
}

TEST_F(MinADTimeWindow, RecalculatesWithTheImpedanceUnit) {
  enter("tImpedance", "1");
  click("cKohm");
  EXPECT_EQ(shown("tMinTaq"), "2 uSec");
  press(Qt::Key_Space);
  EXPECT_EQ(shown("tMinTaq"), "3 uSec");
  control<QLineEdit>("tOSC")->clear();  // as it may stand when no focus moves
  control<QAbstractButton>("cKohm")->click();
  EXPECT_EQ(shown("tOSC") + " | " + results(), "1 | Fosc/2 (ADCS=000) | 0 Tad | 2 uSec");
}

TEST_F(MinADTimeWindow, ReadsTheResolutionOnlyWhenCopying) {
  control<QLineEdit>("tOSC")->setText("4");
  control<QAbstractButton>("oADCBits(0)")->click();
  control<QAbstractButton>("cCopyClip")->click();
  EXPECT_EQ(results(), atLoad);
  std::string defines8 = defines10;
  defines8.replace(defines8.find("10"), 2, " 8");
  EXPECT_EQ(ui::fromQt(QGuiApplication::clipboard()->text()), defines8);
}

}  // namespace
}  // namespace tarnwick::tests
