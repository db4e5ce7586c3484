#pragma once

#include "app/window_set.h"

#include <QPointer>
#include <QWidget>

#include <random>
#include <string>
#include <vector>

namespace tarnwick::tests {

// A user without a plan: clicks, drags, types, pastes, opens and closes windows, with message
// boxes and lists open, in an order that only the seed decides. After each event every field of
// the program is read.
class RandomUser {
public:
  // Opens windows by these launcher buttons; a window joins by its button being named.
  RandomUser(app::WindowSet& windows, std::vector<std::string> launcherButtons, unsigned seed);

  void act(int events);

private:
  int below(int bound);
  template <typename List>
  auto& oneOf(List& list) {
    return list[static_cast<decltype(list.size())>(below(static_cast<int>(list.size())))];
  }
  QWidget* someWindow();
  QWidget* someControl(QWidget* window);

  void actOnce();
  void clickSomewhere(QWidget* window);
  void drag(QWidget* window);
  void wheel(QWidget* window);
  void pressSomeKey(QWidget* window);
  void typeSomething(QWidget* window);
  void commitByInputMethod();
  void pasteSomething();
  void openSomeWindow();
  void closeSomeWindow();
  void checkFields();

  app::WindowSet& windows_;
  std::vector<std::string> launcherButtons_;
  std::mt19937 random_;
};

}  // namespace tarnwick::tests
