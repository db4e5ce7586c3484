#pragma once

#include "support/program.h"
#include "ui/window.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>

#include <algorithm>

namespace tarnwick::tests {

// The program with all of its windows open, for what holds for each of them.
class EveryWindow : public Program {
protected:
  EveryWindow() { openAll(); }

  void openAll() {
    for (auto* button : window("fMain")->findChildren<QPushButton*>()) button->click();
    windows.open("fAbout");
    all.clear();
    for (QWidget* widget : QApplication::topLevelWidgets())
      if (qobject_cast<ui::Window*>(widget) != nullptr && widget->isVisible()) all << widget;
    std::ranges::sort(all, {}, &QWidget::objectName);
  }

  QWidgetList all;
};

// Whether a widget is a control that users operate or read, other than a label.
inline bool isControl(const QWidget* widget) {
  if (qobject_cast<const QComboBox*>(widget->parent()) != nullptr) return false;
  return widget->inherits("QLineEdit") || widget->inherits("QPlainTextEdit") ||
         widget->inherits("QAbstractButton") || widget->inherits("QSlider") ||
         widget->inherits("QComboBox");
}

}  // namespace tarnwick::tests
