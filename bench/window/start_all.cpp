// The program as it is, with every button and About pressed as soon as its launcher is there.

#include "painted.h"

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QTimer>

namespace {

void openAll() {
  const QWidget* launcher = nullptr;
  for (const QWidget* window : QApplication::topLevelWidgets())
    if (window->objectName() == "fMain") launcher = window;
  for (auto* button : launcher->findChildren<QPushButton*>()) button->click();
  launcher->findChild<QAction*>("About")->trigger();
}

void measure() {
  tarnwick::bench::reportWhenPainted(11);
  QTimer::singleShot(0, openAll);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(measure)
