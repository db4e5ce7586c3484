#include "app/program.h"

#include "app/gen_var.h"
#include "app/windows.h"
#include "common/product.h"
#include "ui/style.h"
#include "ui/text.h"

#include <QApplication>
#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QResource>

namespace tarnwick::app {
namespace {

// From pixels: PNGs would load every plugin for pictures after all, 1.2 ms of a start (medians of
// 41, by turns).
QIcon programIcon() {
  QIcon icon;
  for (const int size : {16, 32, 48, 96}) {
    const QByteArray pixels =
        QResource(QStringLiteral(":/tarnwick-%1.rgba").arg(size)).uncompressedData();
    const auto* bytes = reinterpret_cast<const uchar*>(pixels.constData());
    icon.addPixmap(QPixmap::fromImage(QImage(bytes, size, size, QImage::Format_RGBA8888)));
  }
  return icon;
}

}  // namespace

void prepare() {
  QApplication::setApplicationName(ui::toQt(common::product::name));
  QGuiApplication::setDesktopFileName(QStringLiteral("tarnwick"));
  QApplication::setStyle(ui::controlStyle());
  QApplication::setWindowIcon(programIcon());
}

int run() {
  prepare();
  GenVar genVar;
  WindowSet windows;
  addWindows(windows, genVar);
  windows.open("fMain");
  return QApplication::exec();
}

}  // namespace tarnwick::app
