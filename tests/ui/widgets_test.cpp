#include "support/look.h"
#include "support/program.h"
#include "ui/desktop.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QScrollArea>
#include <QSlider>
#include <QWheelEvent>

namespace tarnwick::tests {
namespace {

using Widgets = Program;

TEST_F(Widgets, EntryFieldTakesCharactersFromInputMethodsThroughTheFilter) {
  open("cAD", "fMinADTime");
  for (const auto& [text, typed, focus] :
       {std::tuple("1٣,.5\b.", "1.5", "tOSC"), {"4\r", "4", "tImpedance"}}) {
    QInputMethodEvent event;
    event.setCommitString(text);
    control<QLineEdit>("tOSC")->selectAll();
    QCoreApplication::sendEvent(control("tOSC"), &event);
    EXPECT_EQ(shown("tOSC"), typed);
    EXPECT_EQ(focused(), focus);
  }
}

TEST_F(Widgets, EntryFieldIgnoresControlCombinationsButEdits) {
  open("cAD", "fMinADTime");
  paste("tOSC", "12");
  control<QLineEdit>("tOSC")->selectAll();
  for (const auto& [key, modifiers, text, left] :
       std::initializer_list<std::tuple<int, Qt::KeyboardModifiers, const char*, const char*>>{
           {Qt::Key_V, Qt::ControlModifier, "\x16", "12"},
           {Qt::Key_V, Qt::ControlModifier, "", "12"},
           {Qt::Key_Escape, {}, "\x1b", "12"},
           {Qt::Key_Minus, {}, "-", "12"},
           {Qt::Key_Home, {}, "", "12"},
           {Qt::Key_A, Qt::ControlModifier, "\x01", "12"},
           {Qt::Key_Delete, {}, "\x7f", "2"},
           {Qt::Key_Enter, Qt::KeypadModifier, "\r", "2"}}) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers, QString::fromLatin1(text));
    QCoreApplication::sendEvent(control("tOSC"), &event);
    EXPECT_EQ(shown("tOSC"), left) << "key " << key << " with text " << text;
  }
  EXPECT_EQ(focused(), "tImpedance");
}

// Leaving the oscillator writes it anew.
TEST_F(Widgets, ResultStaysSelectedWhenItIsWrittenAsTheTabKeyComes) {
  open("cTimer", "fTimer");
  EXPECT_EQ(control<QLineEdit>("tFreq")->selectedText(), "");
  press(Qt::ShiftModifier | Qt::Key_Tab);
  EXPECT_EQ(focused(), "tFreq");
  EXPECT_EQ(control<QLineEdit>("tFreq")->selectedText(), "3.802 KHz");
}

TEST_F(Widgets, SliderTakesLongStepsInALongRange) {
  open("cTimer", "fTimer");
  auto* slider = control<QSlider>("scrollpreload");
  const auto turn = [&](int eighths) {
    const QPointF place = slider->rect().center();
    QWheelEvent event(place, slider->mapToGlobal(place), {}, {0, eighths}, {}, {}, {}, false);
    QCoreApplication::sendEvent(slider, &event);
  };
  for (const auto& [width, page, notch] :
       {std::tuple("oType(1)", 16, 3), {"oType(2)", 4096, 256}}) {
    click(width);
    slider->setFocus();
    press(Qt::Key_PageUp);
    EXPECT_EQ(shown("tPreLoad"), std::to_string(page));
    turn(120);
    EXPECT_EQ(shown("tPreLoad"), std::to_string(page + notch));
    for (const int part : {-40, -40, -40}) turn(part);
    press(Qt::Key_Right);
    EXPECT_EQ(shown("tPreLoad"), std::to_string(page + 1));
  }
}

// Off screen the window is wider than its screen.
TEST_F(Widgets, ScrolledWindowShowsWhatHasTheFocus) {
  open("cCustomChar", "fCustomCharacter");
  if (current()->findChild<QScrollArea*>() == nullptr) GTEST_SKIP() << "all of it is seen";
  for (auto* control : controlsOf(current())) {
    if (control->focusPolicy() == Qt::NoFocus || !control->isEnabled() || isCell(control)) continue;
    control->setFocus();
    EXPECT_EQ(control->visibleRegion().boundingRect(), control->rect()) << fullName(control);
  }
  QWheelEvent event({9, 9}, {9, 9}, {}, {0, -120}, {}, {}, {}, false);
  QCoreApplication::sendEvent(control("PortData"), &event);
  EXPECT_EQ(shown("PortData"), "PORTB");
}

TEST(OnDisplayClipboard, KeepsCarriageReturnsForOtherPrograms) {
  QClipboard* clipboard = QGuiApplication::clipboard();
  clipboard->setText("selected by mouse", QClipboard::Selection);
  for (const char* text : {"one\r\ntwo\r\n", "no line end", "é ' $FE"}) {
    ui::copyToClipboard(text);
    EXPECT_EQ(clipboardSeen(), text);
  }
  const bool hasSelection = clipboard->supportsSelection();
  EXPECT_EQ(clipboard->text(QClipboard::Selection), hasSelection ? "selected by mouse" : "");
}

}  // namespace
}  // namespace tarnwick::tests
