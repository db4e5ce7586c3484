#include "first_paint.h"

#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  tarnwick::bench::reportFirstPaint();
  QWidget window;
  window.setFixedSize(313, 260);
  window.show();
  return QApplication::exec();
}
