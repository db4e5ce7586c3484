#include "app/program.h"

#include "app/gen_var.h"
#include "app/windows.h"
#include "common/product.h"
#include "ui/text.h"

#include <QApplication>

#ifdef TARNWICK_FONTCONFIG
#include <fontconfig/fontconfig.h>
#endif

namespace tarnwick::app {

QIcon programIcon() {
  QIcon icon;
  for (const int size : {16, 32, 48})
    icon.addFile(QStringLiteral(":/tarnwick-%1.png").arg(size), QSize(size, size));
  return icon;
}

void readFonts() {
#ifdef TARNWICK_FONTCONFIG
  [[maybe_unused]] static const FcBool done = FcInit();
#endif
}

int run() {
  QApplication::setApplicationName(ui::toQt(common::product::name));
  QGuiApplication::setDesktopFileName(QStringLiteral("tarnwick"));
  QApplication::setWindowIcon(programIcon());
  GenVar genVar;
  WindowSet windows;
  addWindows(windows, genVar);
  windows.open("fMain");
  return QApplication::exec();
}

}  // namespace tarnwick::app
