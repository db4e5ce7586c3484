#include "support/program.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>

#include <set>

namespace tarnwick::tests {
namespace {

// What holds for every window that the launcher opens.
class EveryWindow : public Program {
protected:
  EveryWindow() {
    for (auto* button : window("fMain")->findChildren<QPushButton*>()) {
      EXPECT_TRUE(button->isEnabled()) << ui::fromQt(button->objectName());
      button->click();
    }
    windows.open("fAbout");
    for (QWidget* widget : QApplication::topLevelWidgets())
      if (qobject_cast<ui::Window*>(widget) != nullptr) all << widget;
  }

  QWidgetList all;
};

bool isControl(const QWidget* widget) {
  if (qobject_cast<const QComboBox*>(widget->parent()) != nullptr) return false;
  return qobject_cast<const QLineEdit*>(widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(widget) != nullptr ||
         qobject_cast<const QAbstractButton*>(widget) != nullptr ||
         qobject_cast<const QSlider*>(widget) != nullptr ||
         qobject_cast<const QComboBox*>(widget) != nullptr;
}

TEST_F(EveryWindow, NamesItsControls) {
  EXPECT_EQ(all.size(), 11);
  for (const QWidget* opened : all) {
    const std::string name = ui::fromQt(opened->objectName());
    std::set<QString> names;
    for (const auto* control : opened->findChildren<QWidget*>()) {
      if (!isControl(control) || control->objectName().startsWith("qt_")) continue;
      EXPECT_FALSE(control->objectName().isEmpty()) << name;
      EXPECT_TRUE(names.insert(control->objectName()).second)
          << name << "." << ui::fromQt(control->objectName());
      EXPECT_FALSE(control->accessibleName().isEmpty())
          << name << "." << ui::fromQt(control->objectName());
    }
  }
}

TEST_F(EveryWindow, ShowsItsTextsWhole) {
  for (const QWidget* opened : all) {
    for (const auto* control : opened->findChildren<QWidget*>()) {
      if (!control->isVisible() || opened->objectName() == "fMain") continue;
      if (qobject_cast<const QLabel*>(control) == nullptr &&
          qobject_cast<const QAbstractButton*>(control) == nullptr)
        continue;
      EXPECT_GE(control->width(), control->sizeHint().width())
          << ui::fromQt(opened->objectName() + "." + control->objectName());
    }
  }
}

}  // namespace
}  // namespace tarnwick::tests
