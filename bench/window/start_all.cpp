// The program with all of its windows open.

#include "app/gen_var.h"
#include "app/program.h"
#include "app/window_set.h"
#include "app/windows.h"
#include "painted.h"

#include <QApplication>
#include <QPushButton>

#include <thread>

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  std::thread ahead(app::readFonts);  // as the program does
  QApplication application(argc, argv);
  app::readFonts();
  bench::reportWhenPainted(11);
  app::GenVar genVar;
  app::WindowSet windows;
  app::addWindows(windows, genVar);
  windows.open("fMain");
  windows.open("fAbout");
  for (auto* button : windows.loaded("fMain")->findChildren<QPushButton*>()) button->click();
  const int code = QApplication::exec();
  ahead.join();
  return code;
}
