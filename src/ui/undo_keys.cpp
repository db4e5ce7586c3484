#include "ui/undo_keys.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace tarnwick::ui {
namespace {

// The field that a control lets its user type in; nothing where it is no such control.
QLineEdit* fieldOf(QObject* control) {
  if (const auto* list = qobject_cast<QComboBox*>(control)) return list->lineEdit();
  return qobject_cast<QLineEdit*>(control);
}

QAction* command(QWidget* window, const char* caption, const QList<QKeySequence>& keys) {
  auto* made = new QAction(QLatin1String(caption), window);
  made->setShortcuts(keys);
  made->setShortcutVisibleInContextMenu(true);
  window->addAction(made);
  return made;
}

}  // namespace

UndoKeys::UndoKeys(QWidget* window)
    : QObject(window),
      undo_(command(window, "Undo", {Qt::CTRL | Qt::Key_Z})),
      redo_(command(window, "Redo", {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y})) {
  connect(undo_, &QAction::triggered, this, [this] {
    QLineEdit* field = fieldOf(QApplication::focusWidget());
    if (field == nullptr || !field->isUndoAvailable()) return emit undoAsked();
    field->undo();
  });
  connect(redo_, &QAction::triggered, this, [this] {
    QLineEdit* field = fieldOf(QApplication::focusWidget());
    if (field == nullptr || !field->isRedoAvailable()) return emit redoAsked();
    field->redo();
  });
  for (QWidget* control : window->findChildren<QWidget*>())
    if (fieldOf(control) != nullptr) control->installEventFilter(this);
}

// A field would take the keys for itself, also with nothing to undo.
bool UndoKeys::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride) return false;
  const QKeySequence keys(static_cast<const QKeyEvent*>(event)->keyCombination());
  return (undo_->shortcuts() + redo_->shortcuts()).contains(keys);
}

}  // namespace tarnwick::ui
