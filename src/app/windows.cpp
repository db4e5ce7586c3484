#include "app/windows.h"

#include "app/fAbout.h"
#include "app/fMain.h"
#include "forms/fTimer.h"

namespace tarnwick::app {

void addWindows(WindowSet& windows, GenVar& genVar) {
  windows.add("fMain", [&] { return new fMain(windows, genVar); });
  windows.add("fAbout", [] { return new fAbout; });
  windows.add("fTimer", [&] { return new forms::fTimer(genVar.oscillator); });
}

QIcon programIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256})
    icon.addFile(QStringLiteral(":/tarnwick-%1.png").arg(size), QSize(size, size));
  return icon;
}

}  // namespace tarnwick::app
