#pragma once

#include <QHash>
#include <QWidget>

namespace tarnwick::ui {

// The parent of a table of controls in a grid layout. One row stands out by a tint of the desktop's
// selection colour around its controls; a click on some of them chooses another.
class MarkedRows : public QWidget {
  Q_OBJECT

public:
  explicit MarkedRows(QWidget* parent);

  void mark(int row);
  // Lets a press of the left button on a control choose a row.
  void chooseBy(QWidget* control, int row);

  bool eventFilter(QObject* control, QEvent* event) override;

signals:
  void chosen(int row);

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  QHash<QObject*, int> rows_;  // by the control that chooses them
  int marked_ = -1;
};

}  // namespace tarnwick::ui
