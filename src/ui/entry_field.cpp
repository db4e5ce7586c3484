#include "ui/entry_field.h"

#include "common/read_number.h"
#include "ui/text.h"
#include "ui/widgets.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

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
  connect(this, &QLineEdit::textChanged, this, [this] {
    if (!writing_) emit edited();
  });
}

double EntryField::number() const {
  return common::readNumber(contents());
}

std::string EntryField::contents() const {
  return fromQt(text());
}

void EntryField::setContents(std::string_view text) {
  writing_ = true;
  setText(toQt(text));
  writing_ = false;
  if (isCurrent()) selectAll();
}

QSize EntryField::sizeHint() const {
  return {minimumWidth(), QLineEdit::sizeHint().height()};
}

void EntryField::focusEntered() {
  if (clearsPointOnEntering_) *pointTyped_ = false;
  emit focusGained();
  visit_ = Visit::Fresh;
  selectAll();
}

void EntryField::focusLeft() {
  visit_ = Visit::None;
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
    if (!accepted.isEmpty()) insert(std::exchange(accepted, {}));
    emit validate();
    emit entered();
    if (isCurrent()) selectAll();
  }
  return accepted;
}

bool EntryField::accepts(const QString& characters) const {
  return std::ranges::all_of(characters, [this](QChar character) {
    return keys_(character.unicode(), pointTyped_ != nullptr && *pointTyped_).accepted;
  });
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

// What is being composed would replace the selected number: it is shown if it may become input.
void EntryField::inputMethodEvent(QInputMethodEvent* event) {
  const bool shown = accepts(event->preeditString());
  QInputMethodEvent passed(shown ? event->preeditString() : QString(),
                           shown ? event->attributes() : QList<QInputMethodEvent::Attribute>());
  passed.setCommitString(filtered(event->commitString()), event->replacementStart(),
                         event->replacementLength());
  QLineEdit::inputMethodEvent(&passed);
  event->accept();
}

// In a window that is not active yet the press comes before the focus.
void EntryField::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton) {
    const bool untouched = visit_ == Visit::Fresh && selectedText() == text();
    const bool first = visit_ == Visit::None || untouched;
    mouse_ = first && event->modifiers() == Qt::NoModifier ? Mouse::ClicksFirst : Mouse::Selects;
    pressed_ = event->position().toPoint();
  }
  QLineEdit::mousePressEvent(event);
}

// A hand that trembles on a click drags nothing.
void EntryField::mouseMoveEvent(QMouseEvent* event) {
  const int moved = (event->position().toPoint() - pressed_).manhattanLength();
  if (mouse_ == Mouse::ClicksFirst && moved >= QApplication::startDragDistance())
    mouse_ = Mouse::Selects;
  if (mouse_ == Mouse::Selects) QLineEdit::mouseMoveEvent(event);
}

// A middle click pastes, where a desktop has it: as the first click, over the whole number.
void EntryField::mouseReleaseEvent(QMouseEvent* event) {
  const bool replaces = event->button() == Qt::MiddleButton && mouse_ == Mouse::ClicksFirst;
  const QString pasted = QGuiApplication::clipboard()->text(QClipboard::Selection);
  if (replaces && !pasted.isEmpty()) clear();
  QLineEdit::mouseReleaseEvent(event);
  if (event->button() != Qt::LeftButton) return;
  if (mouse_ == Mouse::ClicksFirst && isCurrent()) selectAll();
  mouse_ = Mouse::Selects;
  if (visit_ == Visit::Fresh) visit_ = Visit::Clicked;
}

void EntryField::mouseDoubleClickEvent(QMouseEvent* event) {
  QLineEdit::mouseDoubleClickEvent(event);
  if (event->button() != Qt::LeftButton) return;
  mouse_ = Mouse::ClicksTwice;
  selectAll();
}

void EntryField::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  drawExceeded(*this);
}

// The click that brings a window to the front is a first one again.
void EntryField::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (event->reason() == Qt::ActiveWindowFocusReason) visit_ = Visit::None;
}

// Without the keys that the toolkit names beside the commands: the filter cancels them.
void EntryField::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (QAction* command : menu->actions())
    command->setText(command->text().section(QLatin1Char('\t'), 0, 0));
  menu->popup(event->globalPos());
}

}  // namespace tarnwick::ui
