#pragma once

#include "app/gen_var.h"
#include "app/window_set.h"
#include "ui/text.h"

#include <QLineEdit>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace tarnwick::tests {

// The program with its launcher open, and a user in front of it: what the user does reaches the
// windows as mouse and key events, what the user sees is read by object names.
class Program : public testing::Test {
protected:
  Program();
  ~Program() override;

  // Opens a window by its launcher button and turns to it.
  void open(const std::string& launcherButton, const std::string& window);
  // The window that is open under this name; the test fails when there is none.
  QWidget* window(const std::string& name);
  // The window that the test works in: the one opened last, unless it turns to another.
  QWidget* current() { return current_; }
  void turnTo(const std::string& window);

  // A control of the current window.
  template <typename Control = QWidget>
  Control* control(const std::string& name) {
    auto* found = current_->findChild<Control*>(ui::toQt(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  std::string focused() const;

  void click(const std::string& control, Qt::MouseButton button = Qt::LeftButton);
  // Clicks a place of a control given in pixels from its top left corner.
  void clickAt(const std::string& control, QPoint place, Qt::MouseButton button = Qt::LeftButton);
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
  void type(const std::string& characters);
  // Goes to an entry field or an editable list, empties it and types a text, without leaving it.
  void enter(const std::string& field, const std::string& characters);
  // The same, left to the window's validation by the Enter key.
  void enterAndConfirm(const std::string& field, const std::string& characters);
  // Pastes a text over a field's or an editable list's own as its context menu does.
  void paste(const std::string& field, const std::string& text);
  // Picks an item of a drop-down list, the current one too, by mouse.
  void pick(const std::string& list, int item);

  // What a one-line field, a column, a label or a list shows, a column's as the program sees it;
  // a slider's position; "on" or "off" of an option or a check box.
  std::string shown(const std::string& control);

  // The message box that is open, or nothing.
  QWidget* message() const;
  // The message's title and text in one: "title: text" or, where it shows a fault's picture,
  // "critical, title: text"; empty when there is no message.
  std::string messageShown() const;
  void confirmMessage();

  app::GenVar genVar;
  app::WindowSet windows;
  // The addresses that the desktop was asked to open, in order; none is really opened.
  QStringList addresses;

private:
  class Shell;
  QLineEdit* goTo(const std::string& field);
  std::unique_ptr<Shell> shell_;
  QWidget* current_ = nullptr;
};

// What another program finds on the clipboard: xclip on an X display, Windows itself there.
std::string clipboardSeenByAnotherProgram();

}  // namespace tarnwick::tests
