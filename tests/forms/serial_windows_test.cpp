#include "forms/fEUSART.h"
#include "support/program.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>

#include <functional>
#include <initializer_list>

namespace tarnwick::tests {
namespace {

class SerialWindow : public Program {
protected:
  // The texts of fields in one, "-" for an empty one.
  std::string texts(std::initializer_list<const char*> fields) {
    std::string all;
    for (const char* field : fields) {
      const std::string text = shown(field);
      all += (all.empty() ? "" : " ") + (text.empty() ? "-" : text);
    }
    return all;
  }
  std::string row0() { return texts({"tSPBRG0", "tCalcBaud0", "tERR0"}); }
  std::string row1() { return texts({"tSPBRG1", "tCalcBaud1", "tERR1"}); }
  std::string best() { return texts({"trERR", "trCalcBaud", "trSPBRG", "trSPBRGH"}); }
  bool enabled(const char* name) { return control(name)->isEnabled(); }
  bool canCopy() {
    EXPECT_EQ(enabled("CopyClip"), enabled("cCopyRegister"));
    return enabled("CopyClip");
  }
  void ask(const char* osc, const char* baud) {
    paste("fOSC", osc);
    paste("BaudRate", baud);
    press(Qt::Key_Return);
  }
};

// What both windows do alike.
class EitherSerialWindow : public SerialWindow, public testing::WithParamInterface<const char*> {
protected:
  EitherSerialWindow() { open(std::string("c") + (GetParam() + 1), GetParam()); }
};
INSTANTIATE_TEST_SUITE_P(Ports, EitherSerialWindow, testing::Values("fUSART", "fEUSART"),
                         [](const auto& port) { return port.param; });

TEST_P(EitherSerialWindow, MovesTheFocusOnEnterAndTab) {
  EXPECT_EQ(focused(), "fOSC");
  for (const char* next : {"BaudRate", "cKBaud", "BaudDropList"}) {
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), next);
  }
  enterAndConfirm("fOSC", "8");
  EXPECT_EQ(focused(), "BaudRate");
  enterAndConfirm("BaudRate", "2400");
  EXPECT_EQ(focused(), "BaudRate");
  EXPECT_EQ(row0(), "51 2404 0.17%");
}

TEST_P(EitherSerialWindow, CorrectsTheRateHoweverItIsLeft) {
  pick("BaudDropList", 7);
  for (const auto& leave : std::initializer_list<std::function<void()>>{
           [&] { press(Qt::Key_Return); }, [&] { press(Qt::Key_Tab); },
           [&] { press(Qt::Key_Backtab); }, [&] { click("tERR0"); }, [&] { click("CopyClip"); }}) {
    for (const auto& [typed, shownThen] :
         std::initializer_list<std::pair<const char*, const char*>>{
             {"", "38400 37879"}, {"0", "1 4883"}, {".", "1 4883"}, {"9600", "9600 9615"}}) {
      enter("BaudRate", typed);
      leave();
      EXPECT_EQ(texts({"BaudRate", "tCalcBaud1"}), shownThen) << typed;
    }
  }
  ask("20", "-9600");
  EXPECT_EQ(shown("BaudRate"), "1");
}

TEST_P(EitherSerialWindow, TakesAChosenRateAsBd) {
  click("cKBaud");
  EXPECT_EQ(shown("BaudRate"), "9600");
  pick("BaudDropList", 3);
  EXPECT_EQ(texts({"BaudRate", "tSPBRG0"}), "2400 129");
  EXPECT_FALSE(isSelected("cKBaud"));
  enterAndConfirm("BaudRate", "77");
  pick("BaudDropList", 3);  // the item that is current already
  EXPECT_EQ(texts({"BaudRate", "tSPBRG0"}), "2400 129");
  control("BaudDropList")->setFocus();
  press(Qt::Key_Down);
  EXPECT_EQ(texts({"BaudRate", "tSPBRG0"}), "4800 64");
}

TEST_P(EitherSerialWindow, ShowsKBaud) {
  enter("BaudRate", "38.4");
  click("cKBaud");
  // 39062.5 Bd go to the even neighbour
  EXPECT_EQ(row0() + " | " + row1(), "7 39.062 K 1.72% | 32 37.879 K -1.36%");
  EXPECT_EQ(best(), "-1.36% 37.879 K 32 1");
  press(Qt::Key_Space);
  EXPECT_EQ(texts({"BaudRate", "tSPBRG0", "tCalcBaud0"}), "38.4 255 1221");
}

TEST_P(EitherSerialWindow, AllowsADecimalPointUntilTheNextCalculation) {
  for (const char* field : {"fOSC", "BaudRate"}) {
    enter(field, "1.");
    press(Qt::Key_Backspace);
    type(".-,5");
    EXPECT_EQ(shown(field), "15") << field;
    control<QAbstractButton>("cKBaud")->toggle();  // calculates
    type(".7");
    EXPECT_EQ(shown(field), "15.7") << field;
    press(Qt::Key_Return);
    control(field)->setFocus();
    press(Qt::Key_End);
    type(".2");
    EXPECT_EQ(shown(field), "15.7.2") << field;
    press(Qt::Key_Return);
    EXPECT_EQ(shown(field), std::string(field) == "fOSC" ? "15.7" : "15.7.2");
  }
}

TEST_P(EitherSerialWindow, WarnsOnceOfAnOscillatorAboveTheMaximum) {
  const std::initializer_list<std::pair<std::function<void()>, std::string>> ways{
      {[&] { press(Qt::Key_Return); }, "BaudRate"},
      {[&] { press(Qt::Key_Tab); }, "BaudRate"},
      {[&] { click("cKBaud"); }, "cKBaud"},
      {[&] { click("CopyClip"); }, "CopyClip"}};
  QGuiApplication::clipboard()->setText(QStringLiteral("untouched"));
  for (const auto& [leave, focusThen] : ways) {
    enter("fOSC", "100");
    leave();
    EXPECT_EQ(messageShown(), "Oscillator speed to high: As now maximum allowed is 64 MHz");
    confirmMessage();
    EXPECT_EQ(message(), nullptr);
    EXPECT_EQ(texts({"fOSC", "tSPBRG0"}), "64 103");
    EXPECT_EQ(focused(), focusThen);
    EXPECT_FALSE(isSelected("cKBaud"));  // what was clicked did not act
    EXPECT_FALSE(control<QAbstractButton>("CopyClip")->isDown());
  }
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "untouched");
}

class Usart : public SerialWindow {
protected:
  Usart() { open("cUSART", "fUSART"); }
};

TEST_F(Usart, MarksTheSettingWithTheSmallerError) {
  enterAndConfirm("BaudRate", "1200");
  EXPECT_EQ(row0() + " | " + row1(), "255 1221 1.75% | 255 4883 306.92%");
  EXPECT_EQ(best(), "1.75% 1221 255 0");
  ask("8", "9600");
  EXPECT_EQ(best(), "0.16% 9615 12 0");  // a tie
  ask("20", "9600");
  click("cKBaud");
  EXPECT_EQ(row0() + " | " + row1(), "0 312.5 K -96.74% | 0 1250 K -86.98%");
  EXPECT_EQ(best(), "-86.98% 1250 K 0 1");
}

TEST_F(Usart, LeavesARowThatHasNoAnswerEmpty) {
  ask("20", "1E307");
  EXPECT_EQ(row0() + " | " + row1(), "- - - | 0 1250000 -100.0%");
  EXPECT_EQ(best(), "-100.0% 1250000 0 1");
  EXPECT_TRUE(canCopy());
  ask("20", "1E-320");
  EXPECT_EQ(row0() + row1() + best(), "- - -- - -- - - -");
  EXPECT_FALSE(canCopy());
  ask("20", "9600");
  EXPECT_EQ(best(), "0.16% 9615 129 1");
  EXPECT_TRUE(canCopy());
}

class Eusart : public SerialWindow {
protected:
  Eusart() { open("cEUSART", "fEUSART"); }

  std::string row2() {
    return texts({"tSPBRG16_0(1)", "tSPBRG16_0(0)", "tCalcBaud16_0", "tERR16_0"});
  }
  std::string row3() {
    return texts({"tSPBRG16_1(1)", "tSPBRG16_1(0)", "tCalcBaud16_1", "tERR16_1"});
  }
  std::string rows() { return row0() + " | " + row1() + " | " + row2() + " | " + row3(); }
  std::string best16() {
    return texts({"trERR16", "trCalcBaud16", "trSPBRG16(1)", "trSPBRG16(0)", "trSPBRGH16"});
  }
  // Error, rate, SPBRGH, SPBRG, BRGH, BRG16.
  std::string finalMatch() {
    return texts({"tfERR", "tfCalcBaud", "TSPBRGH", "tfSPBRG", "tfBRGH", "tfBRG16"});
  }
  void clearLocation() {
    control("dropBRG16")->setFocus();
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    EXPECT_EQ(shown("dropBRG16"), "");
  }
};

const char* const noRows = "- - - | - - - | - - - - | - - - -";

TEST_F(Eusart, ShowsRowsAndBestMatches) {
  const struct {
    const char *osc, *baud, *rows, *best, *best16, *final;
  } cases[] = {
      {"20", "9600", "32 9470 -1.35% | 129 9615 0.16% | 0 129 9615 0.16% | 2 8 9597 -0.03%",
       "0.16% 9615 129 1", "-0.03% 9597 2 8 1", "-0.03% 9597 2 8 1 1"},
      {"8", "9600", "12 9615 0.16% | 51 9615 0.16% | 0 51 9615 0.16% | 0 207 9615 0.16%",
       "0.16% 9615 12 0", "0.16% 9615 0 51 0", "0.16% 9615 0 51 0 1"},
      {"20", "300", "255 1221 307.0% | 255 4883 1527.67% | 16 70 300 0.0% | 65 26 300 0.0%",
       "307.0% 1221 255 0", "0.0% 300 16 70 0", "0.0% 300 16 70 0 1"},
      {"4", "250000", "- - - | - - - | - - - - | 0 3 250000 0.0%", "- - - -", "0.0% 250000 0 3 1",
       "0.0% 250000 0 3 1 1"},
      {"64", "1",
       "255 3906 390500.0% | 255 15625 1562400.0% | 255 255 61 6000.0% | "
       "255 255 244 24300.0%",
       "390500.0% 3906 255 0", "6000.0% 61 255 255 0", "6000.0% 61 255 255 0 1"},
  };
  for (const auto& c : cases) {
    ask(c.osc, c.baud);
    EXPECT_EQ(rows(), c.rows);
    EXPECT_EQ(best(), c.best);
    EXPECT_EQ(best16(), c.best16);
    EXPECT_EQ(finalMatch(), c.final);
    EXPECT_TRUE(canCopy());
  }
  EXPECT_EQ(shown("dropBRG16"), "BAUDCON.3");
}

TEST_F(Eusart, KeepsSomeOldTextsWhenNoRowIsUsable) {
  enterAndConfirm("BaudRate", "10000000");  // no limit of eight characters here
  EXPECT_EQ(rows(), noRows);
  EXPECT_EQ(best(), "0.16% 9615 129 1");
  EXPECT_EQ(best16(), "-0.03% 9597 2 8 1");
  EXPECT_EQ(finalMatch(), "- - 2 - - -");
  EXPECT_FALSE(canCopy());
  EXPECT_FALSE(enabled("dropBRG16"));
  pick("BaudDropList", 5);
  EXPECT_EQ(finalMatch(), "-0.03% 9597 2 8 1 1");
  EXPECT_TRUE(canCopy());
  EXPECT_TRUE(enabled("dropBRG16"));
}

TEST_F(Eusart, KeepsTheMatchesOnAFault) {
  for (const char* fault : {"1E-320", "1E308"}) {
    ask("20", "9600");
    ask("20", fault);
    EXPECT_EQ(rows(), noRows);
    EXPECT_EQ(best(), "0.16% 9615 129 1");
    EXPECT_EQ(best16(), "-0.03% 9597 2 8 1");
    EXPECT_EQ(finalMatch(), "-0.03% 9597 2 8 1 1");
    EXPECT_FALSE(canCopy());
    EXPECT_TRUE(enabled("dropBRG16"));
  }
  pick("dropBRG16", 1);  // choosing a location enables the buttons and calculates nothing
  EXPECT_TRUE(canCopy());
  EXPECT_EQ(rows(), noRows);

  ask("20", "10000000");
  ask("20", "1E-320");
  EXPECT_FALSE(enabled("dropBRG16"));  // left as it was
}

// No oscillator and rate give these rows; they show which fields each step writes.
TEST_F(Eusart, BlanksTheOtherGroupBesideALoneWideRow) {
  const auto row = [](double spbrg, double calc, double err) {
    return calc::BaudRow{.Spbrg = spbrg, .Calc = calc, .Err = err};
  };
  auto& window = dynamic_cast<forms::fEUSART&>(*current());
  window.showRows({row(1, 10, 0.3), row(2, 20, 0.2), std::nullopt, row(515, 40, 0.1)});
  EXPECT_EQ(best(), "20.0% - - -");
  EXPECT_EQ(best16(), "10.0% 40 2 3 1");
  EXPECT_EQ(finalMatch(), "10.0% 40 2 3 1 1");

  window.showRows({row(1, 10, 0.3), row(2, 20, 0.2), std::nullopt, std::nullopt});
  EXPECT_EQ(best16(), "- 40 2 3 1");
  EXPECT_EQ(finalMatch(), "20.0% - - - - 0");

  window.showRows({std::nullopt, row(2, 20, 0.01), row(515, 40, 0.1), row(4, 50, 0.2)});
  EXPECT_EQ(best(), "1.0% 20 2 1");
  EXPECT_EQ(finalMatch(), "1.0% 20 - 2 1 0");  // SPBRGH is emptied
}

TEST_F(Eusart, LeavesTheCopyButtonsAloneWithoutALocation) {
  clearLocation();
  EXPECT_TRUE(canCopy());
  ask("20", "2400");
  EXPECT_TRUE(canCopy());
  ask("20", "1E-320");
  ask("20", "9600");
  EXPECT_EQ(finalMatch(), "-0.03% 9597 2 8 1 1");
  EXPECT_FALSE(canCopy());
  control("dropBRG16")->setFocus();
  type("PORTB.1");
  EXPECT_FALSE(canCopy());  // typing raises nothing
  ask("20", "9600");
  EXPECT_TRUE(canCopy());
  EXPECT_EQ(shown("dropBRG16"), "PORTB.1");
}

TEST_F(Eusart, CopiesNothingWhenTheClickTakesTheMatchAway) {
  for (const char* target : {"CopyClip", "cCopyRegister", "dropBRG16"}) {
    ask("20", "9600");
    enter("BaudRate", "10000000");
    QGuiApplication::clipboard()->setText(QStringLiteral("untouched"));
    click(target);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "untouched") << target;
    EXPECT_FALSE(canCopy());
    EXPECT_EQ(finalMatch(), "- - 2 - - -") << target;
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << target;
    ASSERT_NE(QApplication::focusWidget(), nullptr) << target;
    EXPECT_TRUE(QApplication::focusWidget()->isEnabled()) << target;
    EXPECT_EQ(QApplication::focusWidget()->window(), current()) << target;
    EXPECT_FALSE(control<QAbstractButton>("CopyClip")->isDown());
  }
}

class OnDisplaySerialWindow : public SerialWindow {
protected:
  std::string copied(const char* button) {
    click(button);
    return clipboardSeenByAnotherProgram();
  }
};

TEST_F(OnDisplaySerialWindow, CopiesTheUsartTexts) {
  open("cUSART", "fUSART");
  enterAndConfirm("fOSC", "4");
  EXPECT_EQ(focused(), "BaudRate");
  EXPECT_EQ(copied("CopyClip"),
            "DEFINE HSER_RCSTA 90h ' Enable serial port & continuous receive\r\n"
            "DEFINE HSER_TXSTA 24h ' Enable transmit, BRGH = 1\r\n"
            "DEFINE HSER_SPBRG 25  ' 9600 Baud @ 4MHz, 0.16%\r\n"
            "DEFINE HSER_CLROERR 1 ' Clear overflow automatically\r\n");
  enter("fOSC", "20.");
  enter("BaudRate", "1.2");
  click("cKBaud");
  EXPECT_EQ(copied("cCopyRegister"),
            "RCSTA = $90 ' Enable serial port & continuous receive\r\n"
            "TXSTA = $20 ' Enable transmit, BRGH = 0\r\n"
            "SPBRG = 255 ' 1.2 KBaud @ 20MHz, 1.75%\r\n");
}

TEST_F(OnDisplaySerialWindow, CopiesTheEusartTexts) {
  open("cEUSART", "fEUSART");
  enterAndConfirm("fOSC", "20");
  EXPECT_EQ(copied("CopyClip"),
            "DEFINE HSER_RCSTA 90h ' Enable serial port & continuous receive\r\n"
            "DEFINE HSER_TXSTA 24h ' Enable transmit, BRGH = 1\r\n"
            "DEFINE HSER_CLROERR 1 ' Clear overflow automatically\r\n"
            "DEFINE HSER_SPBRG 8   ' 9600 Baud @ 20MHz, -0.03%\r\n"
            "SPBRGH = 2\r\n"
            "BAUDCON.3 = 1         ' Enable 16 bit baudrate generator\r\n");
  pick("dropBRG16", 1);
  EXPECT_EQ(copied("cCopyRegister"),
            "RCSTA = $90   ' Enable serial port & continuous receive\r\n"
            "TXSTA = $24   ' Enable transmit, BRGH = 1\r\n"
            "SPBRG = 8     ' 9600 Baud @ 20MHz, -0.03%\r\n"
            "SPBRGH = 2\r\n"
            "BAUDCTL.3 = 1 ' Enable 16 bit baudrate generator\r\n");
}

}  // namespace
}  // namespace tarnwick::tests
