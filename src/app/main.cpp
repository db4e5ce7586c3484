#include "app/program.h"

#include <QApplication>

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  return tarnwick::app::run();
}
