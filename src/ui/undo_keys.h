#pragma once

#include <QAction>
#include <QLineEdit>
#include <QWidget>

namespace tarnwick::ui {

// The keys of undo (Ctrl+Z) and redo (Ctrl+Shift+Z, Ctrl+Y) of a window. In a field or an editable
// list that has typing to undo or redo, they do that, as elsewhere on the desktop; otherwise they
// ask for the window's own undo or redo, wherever the focus is. An entry field cancels them as it
// cancels all keys that its filter does not take.
class UndoKeys : public QObject {
  Q_OBJECT

public:
  // Made once all controls are there. Typing in the fields of the window's own history is undone
  // with the rest of it.
  UndoKeys(QWidget* window, QWidgetList ofHistory);

  // The two as commands, for a menu.
  [[nodiscard]] QList<QAction*> commands() const { return {undo_, redo_}; }

  bool eventFilter(QObject* field, QEvent* event) override;

signals:
  void undoAsked();
  void redoAsked();

private:
  // The field in which the keys undo typing; nothing where they ask for the window's undo.
  [[nodiscard]] QLineEdit* fieldWithTyping() const;

  QWidgetList ofHistory_;
  QAction* undo_;
  QAction* redo_;
};

}  // namespace tarnwick::ui
