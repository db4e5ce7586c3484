#include "app/program.h"
#include "first_paint.h"

#include <QApplication>

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  tarnwick::bench::reportFirstPaint();
  return tarnwick::app::run();
}
