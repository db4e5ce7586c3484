#pragma once

#include "app/gen_var.h"
#include "app/window_set.h"
#include "ui/text.h"

#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QUrl>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace tarnwick::tests {

// Takes what the desktop would open in a browser or a mail program.
class Shell : public QObject {
  Q_OBJECT

public:
  Shell();
  ~Shell() override;

  QStringList addresses;

public slots:
  void take(const QUrl& address) { addresses << address.toString(); }
};

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
  void press(QKeyCombination keys);
  // Types characters; "\r" is the Enter key.
  void type(const std::string& characters);
  // Goes to an entry field or an editable list, empties it and types.
  void enter(const std::string& field, const std::string& characters);
  // Pastes a text over a field's or an editable list's own as its context menu does.
  void paste(const std::string& field, const std::string& text);
  // Picks an item of a drop-down list, the current one too, by mouse.
  void pick(const std::string& list, int item);

  // What a one-line field, a column, a label or a list shows, a column's as the program sees it;
  // a slider's position; "on" or "off" of an option or a check box.
  std::string shown(const std::string& control);

  // The message box that is open, or nothing.
  QWidget* message() const;
  // The message's title and text in one: "title: text", which its kind leads where it is no warning
  // ("critical, title: text") and all buttons but OK follow; empty when there is no message.
  std::string messageShown() const;
  void confirmMessage();

  app::GenVar genVar;
  app::WindowSet windows;
  Shell shell;

private:
  void clickAt(const QWidget& target, QPoint place, Qt::MouseButton button);
  QLineEdit* goTo(const std::string& field);

  QPointer<QWidget> current_;
};

inline constexpr std::array windowNames{
    "fAbout", "fComparator",   "fCustomCharacter", "fEUSART",      "fMain", "fMinADTime",
    "fPWM",   "fSerinSerout2", "fTimer",           "fTimerHelper", "fUSART"};

// The program with all of its windows open, for what holds for each of them.
class EveryWindow : public Program {
protected:
  EveryWindow() { openAll(); }
  void openAll();

  std::vector<QWidget*> all;
};

// What is on the clipboard, as another program finds it (xclip on an X display, Windows itself
// there); off screen, where there is none, as this one does.
std::string clipboardSeen();

}  // namespace tarnwick::tests
