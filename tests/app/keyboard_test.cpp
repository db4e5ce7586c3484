#include "support/look.h"
#include "support/program.h"

#include <QAbstractButton>
#include <QApplication>

#include <algorithm>

namespace tarnwick::tests {
namespace {

// Where the Tab key (Shift+Tab, back) leads from a control until it comes round; each control on
// the way looks different while it has the focus.
QWidgetList stopsFrom(QWidget* first, Qt::Key key) {
  QWidgetList stops;
  first->setFocus(Qt::TabFocusReason);
  for (QWidget* at = QApplication::focusWidget(); !stops.contains(at);) {
    stops << at;
    const QImage focused = onScreen(at);
    QTest::keyClick(first->window()->windowHandle(), key);
    QWidget* next = QApplication::focusWidget();
    EXPECT_TRUE(next == at || onScreen(at) != focused) << fullName(at);
    at = next;
  }
  return stops;
}

// Inputs come first, then buttons, then results.
int partOf(const QWidget* control) {
  if (control->inherits("QPushButton")) return 1;
  return isResult(control).value_or(false) ? 2 : 0;
}

// Whether users go to a control by the Tab key to operate it or to select what it shows. To the
// other options, and the other cells of a grid, the arrow keys lead; Image2 repeats what is shown
// elsewhere.
bool isStop(const QWidget* control) {
  const auto* button = qobject_cast<const QAbstractButton*>(control);
  if (isCell(control) || control->parentWidget()->objectName() == "Image2") return false;
  if (button != nullptr) return button->isChecked() || !control->inherits("QRadioButton");
  if (isResult(control).value_or(false)) return !textOf(control).isEmpty();
  return isResult(control) || control->inherits("QSlider") || control->inherits("QComboBox");
}

// In which order, the list of all windows tells.
TEST_F(EveryWindow, LeadsTheTabKeyToEachControl) {
  QApplication::setCursorFlashTime(0);
  for (QWidget* opened : all) {
    turnTo(ui::fromQt(opened->objectName()));
    QWidget* first = opened;
    while (first->focusPolicy() == Qt::NoFocus) first = first->nextInFocusChain();
    const QWidgetList forth = stopsFrom(first, Qt::Key_Tab);
    QWidgetList back = stopsFrom(forth.back(), Qt::Key_Backtab);
    std::ranges::reverse(back);
    for (const QWidgetList& stops : {forth, back})
      EXPECT_TRUE(std::ranges::is_sorted(stops, {}, partOf)) << fullName(opened);
    for (QWidget* control : controlsOf(opened)) {
      const bool isReached = (forth + back).contains(control);
      EXPECT_TRUE(isReached || !isStop(control) || !control->isVisible() || !control->isEnabled())
          << fullName(control);
      EXPECT_TRUE(!isReached || isStop(control) || isCell(control)) << fullName(control);
    }
    // The way to what is copied is short; the characters' is as long as their table.
    const auto inputs = std::ranges::count(forth, 0, partOf);
    EXPECT_TRUE(inputs <= 12 || opened->objectName() == "fCustomCharacter") << fullName(opened);
  }
}

using Keyboard = Program;

TEST_F(Keyboard, OpensWindows) {
  for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    turnTo("fMain");
    control("cPWM")->setFocus();
    press(key);
    turnTo("fPWM");
    press(Qt::Key_Escape);
    turnTo("fPWM");
    current()->close();
  }
  turnTo("fMain");
  for (const auto key : {Qt::Key_Alt, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return})
    press(key);
  turnTo("fAbout");
  press(Qt::Key_Enter);
  EXPECT_EQ(windows.loaded("fAbout"), nullptr);
}

TEST_F(EveryWindow, ClosesByKeys) {
  for (const std::string name : windowNames) {
    turnTo(name);
    press(Qt::Key_Escape);
    EXPECT_EQ(windows.loaded(name) == nullptr, name == "fAbout") << name;
    if (windows.loaded(name) != nullptr) press(Qt::CTRL | Qt::Key_W);
    EXPECT_EQ(windows.loaded(name) == nullptr, name != "fMain") << name;
  }
  for (const std::string name : windowNames) {
    windows.open("fMain");
    windows.open(name);
    turnTo(name);
    press(Qt::CTRL | Qt::Key_Q);
    EXPECT_EQ(windows.loaded("fMain"), nullptr) << name;
  }
}

}  // namespace
}  // namespace tarnwick::tests
