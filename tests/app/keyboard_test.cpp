#include "support/every_window.h"
#include "ui/pixels.h"

#include <QImage>
#include <QRadioButton>

#include <array>
#include <set>

namespace tarnwick::tests {
namespace {

using Keyboard = EveryWindow;

// Where the Tab key (Shift+Tab, back) leads from a control until it comes round; each control on
// the way looks different while it has the focus.
QWidgetList stopsFrom(QWidget* first, Qt::Key key) {
  QWidgetList stops;
  first->setFocus(Qt::TabFocusReason);
  for (QWidget* at = QApplication::focusWidget(); at != nullptr && !stops.contains(at);) {
    stops << at;
    const QImage focused = at->grab().toImage();
    QTest::keyClick(first->window()->windowHandle(), key);
    const QWidget* next = QApplication::focusWidget();
    EXPECT_TRUE(next == at || at->grab().toImage() != focused) << at->objectName().toStdString();
    at = QApplication::focusWidget();
  }
  return stops;
}

// The part of a window that holds one control and not the other.
const QWidget* partBeside(const QWidget* control, const QWidget* other) {
  while (!control->parentWidget()->isAncestorOf(other)) control = control->parentWidget();
  return control;
}

// Going on is going right or down, in rows or in columns, and one group after the other.
void expectReadingOrder(const QWidgetList& stops) {
  std::set<const QWidget*> groups{stops.front()->parentWidget()};
  for (int i = 1; i < stops.size(); ++i) {
    const QRect from = partBeside(stops[i - 1], stops[i])->geometry();
    const QRect to = partBeside(stops[i], stops[i - 1])->geometry();
    const bool onward = (to.bottom() >= from.top() || to.left() > from.right()) &&
                        (to.right() >= from.left() || to.top() > from.bottom());
    const QWidget* group = stops[i]->parentWidget();
    EXPECT_TRUE(onward && (group == stops[i - 1]->parentWidget() || groups.insert(group).second))
        << ui::fromQt(stops[i - 1]->objectName() + " to " + stops[i]->objectName());
  }
}

// The Tab key stops at the selected option; the arrow keys move in its group, and inside the grid.
bool reaches(const QWidget* stop, const QWidget* control) {
  const auto* option = qobject_cast<const QRadioButton*>(stop);
  if (option != nullptr && !option->isChecked()) return false;
  const bool arrows = control->inherits("QRadioButton") ||
                      qobject_cast<ui::PixelGrid*>(control->parentWidget()) != nullptr;
  return stop == control || (arrows && stop->metaObject() == control->metaObject() &&
                             stop->parentWidget() == control->parentWidget());
}

TEST_F(Keyboard, LeadsTheTabKeyToEachControlAsTheEyeGoes) {
  QApplication::setCursorFlashTime(0);
  for (QWidget* opened : all) {
    turnTo(ui::fromQt(opened->objectName()));
    QWidget* first = opened;
    while (first->focusPolicy() == Qt::NoFocus) first = first->nextInFocusChain();
    const QWidgetList forth = stopsFrom(first, Qt::Key_Tab);
    QWidgetList back = stopsFrom(forth.back(), Qt::Key_Backtab);
    std::ranges::reverse(back);
    expectReadingOrder(forth);
    expectReadingOrder(back);
    for (const auto* control : opened->findChildren<QWidget*>()) {
      if (!isControl(control) || !control->isVisible() || !control->isEnabled()) continue;
      if (control->parentWidget()->objectName() == "Image2") continue;  // copies of uTleft, uTright
      EXPECT_TRUE(std::ranges::any_of(forth + back, [&](auto* stop) {
        return reaches(stop, control);
      })) << ui::fromQt(opened->objectName() + "." + control->objectName());
    }
  }
}

TEST_F(Keyboard, OpensByKeysAlone) {
  for (QWidget* opened : all)
    if (opened != window("fMain")) opened->close();
  QCoreApplication::processEvents();
  const auto count = [] {
    return std::ranges::count_if(QApplication::topLevelWidgets(), &QWidget::isVisible);
  };
  constexpr std::array keys{Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter};
  for (std::size_t i = 0; auto* button : window("fMain")->findChildren<QPushButton*>()) {
    turnTo("fMain");
    button->setFocus();
    const auto before = count();
    press(keys[i++ % keys.size()]);
    EXPECT_EQ(count(), before + 1) << button->objectName().toStdString();
  }
  turnTo("fMain");
  for (const auto key : {Qt::Key_Alt, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Return})
    press(key);
  EXPECT_NE(windows.loaded("fAbout"), nullptr);
  turnTo("fAbout");
  press(Qt::Key_Enter);
  EXPECT_EQ(windows.loaded("fAbout"), nullptr);
}

}  // namespace
}  // namespace tarnwick::tests
