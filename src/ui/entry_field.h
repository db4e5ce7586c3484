#pragma once

#include "common/key_filter.h"
#include "ui/window.h"

#include <QLineEdit>

#include <string>
#include <string_view>

namespace tarnwick::ui {

// What makes one entry field differ from another.
struct EntryFieldTraits {
  // The filter that every typed character passes.
  common::KeyVerdict (*keys)(char32_t character, bool pointTyped) = common::wholeNumberKey;
  // The window's point-typed flag of a decimal field; it outlives the field.
  bool* pointTyped = nullptr;
  bool clearsPointOnEntering = false;
  // Leaving the field validates it once more in its focus-lost step.
  bool validatesOnFocusLost = false;
  int maxLength = 32767;
  // The longest text that the field is to show whole; read while the field is made.
  std::string_view widest = "00000000";
};

// A one-line field for a number. Typed characters pass the key filter, whether they come by keys
// or by an input method; pasted text does not, but stays on one line. Enter validates and then
// reports `entered`; moving to another control of the window validates and then reports
// `focusLost`. Assistive tools call it by the caption of its group, unless it is named otherwise.
//
// So that typing replaces the number, it is selected whole when the user comes to the field or
// presses Enter in it, and when it is rewritten under the user's hands. The first click since the
// user came selects it too, unless it becomes a drag; the next one sets the caret.
class EntryField : public QLineEdit, public FocusListener {
  Q_OBJECT

public:
  EntryField(QWidget* parent, std::string_view name, const EntryFieldTraits& traits);

  // The field's text as a number.
  [[nodiscard]] double number() const;
  [[nodiscard]] std::string contents() const;
  // Writes a text, cut at the field's maximum length; `edited` is not raised.
  void setContents(std::string_view text);
  // Whether the user works in this field, be it that a message or another window is in front.
  [[nodiscard]] bool isCurrent() const { return window()->focusWidget() == this; }
  [[nodiscard]] QSize sizeHint() const override;

  void focusEntered() override;
  void focusLeft() override;

signals:
  // The text was changed otherwise than by `setContents`: typed, pasted, put by an assistive tool.
  void edited();
  void validate();
  void entered();
  void focusGained();
  void focusLost();

protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

private:
  // Passes the characters through the key filter and answers those that may be inserted.
  QString filtered(const QString& characters);
  // Whether the key filter would accept all of the characters.
  [[nodiscard]] bool accepts(const QString& characters) const;

  decltype(EntryFieldTraits::keys) keys_;
  bool* pointTyped_;
  bool clearsPointOnEntering_;
  bool validatesOnFocusLost_;
  bool writing_ = false;
  // Whether the user is in the field, and has clicked in it since coming there.
  enum class Visit { None, Fresh, Clicked } visit_ = Visit::None;
  // What the mouse does while a button is held down.
  enum class Mouse { Selects, ClicksFirst, ClicksTwice } mouse_ = Mouse::Selects;
  QPoint pressed_;
};

}  // namespace tarnwick::ui
