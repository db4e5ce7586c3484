#include "app/program.h"

#include <QApplication>

int main(int argc, char* argv[]) {
  std::thread fonts = tarnwick::app::readFontsAhead();
  QApplication application(argc, argv);
  if (fonts.joinable()) fonts.join();
  return tarnwick::app::run();
}
