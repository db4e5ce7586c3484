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
class EntryField : public QLineEdit, public FocusListener {
  Q_OBJECT

public:
  EntryField(QWidget* parent, std::string_view name, const EntryFieldTraits& traits);

  // The field's text as a number.
  [[nodiscard]] double number() const;
  [[nodiscard]] std::string contents() const;
  // Writes a text, cut at the field's maximum length.
  void setContents(std::string_view text);
  [[nodiscard]] QSize sizeHint() const override;

  void focusEntered() override;
  void focusLeft() override;

signals:
  void validate();
  void entered();
  void focusGained();
  void focusLost();

protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;

private:
  // Passes the characters through the key filter and answers those that may be inserted.
  QString filtered(const QString& characters);

  decltype(EntryFieldTraits::keys) keys_;
  bool* pointTyped_;
  bool clearsPointOnEntering_;
  bool validatesOnFocusLost_;
};

}  // namespace tarnwick::ui
