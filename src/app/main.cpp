#include "app/program.h"

#include <QApplication>

#include <thread>

int main(int argc, char* argv[]) {
  std::thread ahead(tarnwick::app::readFonts);
  QApplication application(argc, argv);
  tarnwick::app::readFonts();
  const int code = tarnwick::app::run();
  ahead.join();
  return code;
}
