#include "app/gen_var.h"
#include "app/window_set.h"
#include "app/windows.h"
#include "common/product.h"
#include "ui/text.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  QApplication application(argc, argv);
  QApplication::setApplicationName(ui::toQt(common::product::name));
  QApplication::setWindowIcon(app::programIcon());

  app::GenVar genVar;
  app::WindowSet windows;
  app::addWindows(windows, genVar);
  windows.open("fMain");
  return QApplication::exec();
}
