#include "painted.h"

#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  tarnwick::bench::reportWhenPainted(1);
  QWidget window;
  window.setFixedSize(313, 260);
  window.show();
  return QApplication::exec();
}
