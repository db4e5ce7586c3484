// The LCD custom character generator on the display that is there: from the click on the launcher's
// button to the window painted; from the click on a grid cell, and on "Invert all", to everything
// repainted. Prints the median of each.

#include "app/gen_var.h"
#include "app/window_set.h"
#include "app/windows.h"
#include "ui/text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string_view>
#include <vector>

namespace {

using tarnwick::ui::toQt;

// Sees when a window has been painted: by its first paint event, or when what was to be painted
// anew has been.
class Painted : public QObject {
public:
  Painted() { qApp->installEventFilter(this); }

  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (receiver->objectName() == QLatin1String("fCustomCharacter") &&
        (event->type() == QEvent::Paint || event->type() == QEvent::UpdateRequest))
      painted_ = true;
    return false;
  }

  // Milliseconds from the click until the window has been painted.
  double after(QAbstractButton& button) {
    painted_ = false;
    const auto start = std::chrono::steady_clock::now();
    button.click();
    while (!painted_) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const auto end = std::chrono::steady_clock::now();
    QCoreApplication::processEvents();
    return std::chrono::duration<double, std::milli>(end - start).count();
  }

private:
  bool painted_ = false;
};

QAbstractButton& button(tarnwick::app::WindowSet& windows, std::string_view window,
                        std::string_view name) {
  return *windows.loaded(window)->findChild<QAbstractButton*>(toQt(name));
}

void print(const char* what, std::vector<double> times) {
  std::ranges::sort(times);
  std::printf("%-12s %7.2f ms (median of %zu)\n", what, times[times.size() / 2], times.size());
}

}  // namespace

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  app::GenVar genVar;
  app::WindowSet windows;
  app::addWindows(windows, genVar);
  windows.open("fMain");
  QCoreApplication::processEvents();

  Painted painted;
  std::vector<double> opening;
  for (int run = 0; run < 101; ++run) {
    windows.unload("fCustomCharacter");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    opening.push_back(painted.after(button(windows, "fMain", "cCustomChar")));
  }
  std::printf("%-12s %7.2f ms (the first)\n", "opening", opening.front());
  print("opening", opening);

  for (const char* name : {"chk(12)", "cInvertAll"}) {
    std::vector<double> times;
    for (int run = 0; run < 1001; ++run)
      times.push_back(painted.after(button(windows, "fCustomCharacter", name)));
    print(name, times);
  }
  windows.unload("fMain");
}
