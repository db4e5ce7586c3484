#pragma once

#include <QKeySequence>
#include <QMessageBox>
#include <QPointer>
#include <QScrollArea>
#include <QWidget>

#include <string_view>

namespace tarnwick::ui {

// A control that acts when the focus comes to it from, or leaves it for, another control of the
// same window. Switching windows, popups, menus and closing the window are neither.
class FocusListener {
public:
  virtual void focusEntered() = 0;
  virtual void focusLeft() = 0;

protected:
  ~FocusListener() = default;
};

// A top-level window without an owner. It follows which of its controls the user works in, shows
// at most one message at a time, and says when it is closed; whoever opened it then deletes it.
class Window : public QWidget {
  Q_OBJECT

public:
  Window(std::string_view name, std::string_view caption);
  ~Window() override;

  // Gives the window the size at which it is to be shown; one that is larger than its screen
  // scrolls, and shows the control that has the focus. Called once, when its controls are laid out.
  void fitToScreen();

  // Shows the window, or brings it forward when it is open or minimised.
  void bringForward();

  // Lets keys close the window.
  void closeBy(const QKeySequence& keys);

  // Shows a message with an OK button that blocks this window until it is closed; the call does
  // not wait for that. Nothing happens while another message of this window is open. A mouse
  // press that led to the message reaches no control: what was clicked does not act.
  void showMessage(QMessageBox::Icon icon, std::string_view title, std::string_view text);

signals:
  // The window is being closed; its fields can still be read, none of them is validated.
  void unloading();

protected:
  void closeEvent(QCloseEvent* event) override;

private:
  void followFocus(QWidget* now);

  QPointer<QWidget>
      current_;  // the control that the user works in, also while another window is active
  QPointer<QMessageBox> message_;
  QScrollArea* scrolls_ = nullptr;  // what a window too large for its screen scrolls in
};

}  // namespace tarnwick::ui
