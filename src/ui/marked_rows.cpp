#include "ui/marked_rows.h"

#include "ui/drawing.h"

#include <QGridLayout>
#include <QMouseEvent>
#include <QPainter>

namespace tarnwick::ui {
namespace {

// Where a row of the table stands, as wide as the table.
QRect bandOf(const QWidget& table, int row) {
  const auto* grid = qobject_cast<const QGridLayout*>(table.layout());
  if (grid == nullptr || row < 0 || row >= grid->rowCount()) return {};
  QRect band = grid->cellRect(row, 0);
  band.setLeft(0);
  band.setWidth(table.width());
  return band;
}

bool isLeftPress(const QEvent& event) {
  return event.type() == QEvent::MouseButtonPress &&
         static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
}

}  // namespace

MarkedRows::MarkedRows(QWidget* parent) : QWidget(parent) {}

void MarkedRows::mark(int row) {
  if (row == marked_) return;
  marked_ = row;
  update();
}

void MarkedRows::chooseBy(QWidget* control, int row) {
  rows_.insert(control, row);
  control->installEventFilter(this);
}

bool MarkedRows::eventFilter(QObject* control, QEvent* event) {
  if (isLeftPress(*event)) emit chosen(rows_.value(control));
  return false;
}

void MarkedRows::paintEvent(QPaintEvent*) {
  QPainter(this).fillRect(bandOf(*this, marked_), markColor(palette()));
}

}  // namespace tarnwick::ui
