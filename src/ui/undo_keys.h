#pragma once

#include <QAction>

namespace tarnwick::ui {

// The keys of undo (Ctrl+Z) and redo (Ctrl+Shift+Z, Ctrl+Y) of a window. In a field or an editable
// list that has typing to undo or redo, they do that, as elsewhere on the desktop; otherwise they
// ask for the window's own undo or redo, wherever the focus is.
class UndoKeys : public QObject {
  Q_OBJECT

public:
  // Made once all controls are there.
  explicit UndoKeys(QWidget* window);

  // The two as commands, for a menu.
  [[nodiscard]] QList<QAction*> commands() const { return {undo_, redo_}; }

  bool eventFilter(QObject* field, QEvent* event) override;

signals:
  void undoAsked();
  void redoAsked();

private:
  QAction* undo_;
  QAction* redo_;
};

}  // namespace tarnwick::ui
