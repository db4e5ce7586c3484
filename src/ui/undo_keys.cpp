#include "ui/undo_keys.h"

#include "ui/entry_field.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>

#include <utility>

namespace tarnwick::ui {
namespace {

// The field that a control lets its user type in; nothing where it is no such control.
QLineEdit* fieldOf(QObject* control) {
  if (const auto* list = qobject_cast<QComboBox*>(control)) return list->lineEdit();
  return qobject_cast<QLineEdit*>(control);
}

bool isEntry(const QObject* control) {
  return qobject_cast<const EntryField*>(control) != nullptr;
}

QAction* command(QWidget* window, const char* caption, const QList<QKeySequence>& keys) {
  auto* made = new QAction(QLatin1String(caption), window);
  made->setShortcuts(keys);
  made->setShortcutVisibleInContextMenu(true);
  window->addAction(made);
  return made;
}

}  // namespace

UndoKeys::UndoKeys(QWidget* window, QWidgetList ofHistory)
    : QObject(window),
      ofHistory_(std::move(ofHistory)),
      undo_(command(window, "Undo", {Qt::CTRL | Qt::Key_Z})),
      redo_(command(window, "Redo", {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y})) {
  connect(undo_, &QAction::triggered, this, [this] {
    if (isEntry(QApplication::focusWidget())) return;
    QLineEdit* field = fieldWithTyping();
    if (field == nullptr || !field->isUndoAvailable()) return emit undoAsked();
    field->undo();
  });
  connect(redo_, &QAction::triggered, this, [this] {
    if (isEntry(QApplication::focusWidget())) return;
    QLineEdit* field = fieldWithTyping();
    if (field == nullptr || !field->isRedoAvailable()) return emit redoAsked();
    field->redo();
  });
  for (QWidget* control : window->findChildren<QWidget*>())
    if (fieldOf(control) != nullptr) control->installEventFilter(this);
}

QLineEdit* UndoKeys::fieldWithTyping() const {
  QWidget* focus = QApplication::focusWidget();
  return ofHistory_.contains(focus) ? nullptr : fieldOf(focus);
}

// A field would take the keys for itself, also with nothing to undo.
bool UndoKeys::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) return false;
  const QKeySequence keys(static_cast<const QKeyEvent*>(event)->keyCombination());
  return (undo_->shortcuts() + redo_->shortcuts()).contains(keys);
}

}  // namespace tarnwick::ui
