#include "ui/entry_field.h"

#include "common/read_number.h"
#include "ui/text.h"
#include "ui/widgets.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

namespace tarnwick::ui {
namespace {

const QString enter = QStringLiteral("\r");
constexpr QChar erase(8);  // as a key it edits; an input method has commands of its own

// Keys that edit the text without producing a character, whatever text they carry.
bool isEditingKey(int key) {
  switch (key) {
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
    case Qt::Key_Insert:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
      return true;
    default:
      return false;
  }
}

// A real Ctrl+V carries the character 22, a synthesised one "v" or nothing: the filter would
// cancel the first, so every such combination is cancelled.
bool isControlCombination(const QKeyEvent& event) {
  return event.modifiers().testFlag(Qt::ControlModifier) && !isEditingKey(event.key());
}

}  // namespace

EntryField::EntryField(QWidget* parent, std::string_view name, const EntryFieldTraits& traits)
    : QLineEdit(parent),
      keys_(traits.keys),
      pointTyped_(traits.pointTyped),
      clearsPointOnEntering_(traits.clearsPointOnEntering),
      validatesOnFocusLost_(traits.validatesOnFocusLost) {
  setObjectName(toQt(name));
  setMaxLength(traits.maxLength);
  keepOnOneLine(*this);
  setAlignment(Qt::AlignCenter);
  setInputMethodHints(pointTyped_ != nullptr ? Qt::ImhFormattedNumbersOnly : Qt::ImhDigitsOnly);
  fitWidth(*this, traits.widest);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  if (const auto* group = qobject_cast<QGroupBox*>(parent)) setAccessibleName(group->title());
}

double EntryField::number() const {
  return common::readNumber(contents());
}

std::string EntryField::contents() const {
  return fromQt(text());
}

void EntryField::setContents(std::string_view text) {
  setText(toQt(text));
}

QSize EntryField::sizeHint() const {
  return {minimumWidth(), QLineEdit::sizeHint().height()};
}

void EntryField::focusEntered() {
  if (clearsPointOnEntering_) *pointTyped_ = false;
  emit focusGained();
}

void EntryField::focusLeft() {
  emit validate();
  if (validatesOnFocusLost_) emit validate();
  emit focusLost();
}

QString EntryField::filtered(const QString& characters) {
  bool none = false;
  bool& pointTyped = pointTyped_ != nullptr ? *pointTyped_ : none;
  QString accepted;
  for (const QChar character : characters) {
    const common::KeyVerdict verdict = keys_(character.unicode(), pointTyped);
    pointTyped = verdict.pointTyped;
    if (verdict.accepted && character != erase) accepted += character;
    if (!verdict.enter) continue;
    emit validate();
    emit entered();
  }
  return accepted;
}

void EntryField::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key == Qt::Key_Return || key == Qt::Key_Enter) {
    filtered(enter);
  } else if (isControlCombination(*event)) {
    event->accept();
  } else if (event->text().isEmpty() || isEditingKey(key)) {
    QLineEdit::keyPressEvent(event);
  } else if (const QString accepted = filtered(event->text()); !accepted.isEmpty()) {
    insert(accepted);  // an empty text would delete the selected one
  }
}

void EntryField::inputMethodEvent(QInputMethodEvent* event) {
  QInputMethodEvent passed(event->preeditString(), event->attributes());
  passed.setCommitString(filtered(event->commitString()), event->replacementStart(),
                         event->replacementLength());
  QLineEdit::inputMethodEvent(&passed);
  event->accept();
}

}  // namespace tarnwick::ui
