// The program with all of its windows open.

#include "app/gen_var.h"
#include "app/program.h"
#include "app/window_set.h"
#include "app/windows.h"
#include "painted.h"

#include <QApplication>
#include <QPushButton>

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  std::thread fonts = app::readFontsAhead();
  QApplication application(argc, argv);
  if (fonts.joinable()) fonts.join();
  bench::reportWhenPainted(11);
  app::GenVar genVar;
  app::WindowSet windows;
  app::addWindows(windows, genVar);
  windows.open("fMain");
  windows.open("fAbout");
  for (auto* button : windows.loaded("fMain")->findChildren<QPushButton*>()) button->click();
  return QApplication::exec();
}
