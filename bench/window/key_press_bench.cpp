// From the key press that confirms an entry to all fields rewritten: the windows that search.
// Prints the median of each.

#include "app/gen_var.h"
#include "app/window_set.h"
#include "app/windows.h"
#include "ui/text.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

constexpr int runs = 2001;

struct Entry {
  const char* window;
  const char* field;
  std::array<const char*, 2> texts;  // entered in turn, so that each entry changes the results
};

constexpr std::array entries{
    Entry{"fPWM", "tFreq", {"5", "5.1"}}, Entry{"fPWM", "tDuty", {"40", "60"}},
    Entry{"fTimerHelper", "tDelay", {"240", "250"}}, Entry{"fTimerHelper", "tReload", {"3", "5"}}};

// Microseconds until the key press has been dealt with; every text stands in its field by then.
double confirm(QLineEdit& field, const char* text) {
  field.setText(QLatin1String(text));
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
  const auto start = std::chrono::steady_clock::now();
  QCoreApplication::sendEvent(&field, &enter);
  const auto end = std::chrono::steady_clock::now();
  QCoreApplication::processEvents();
  return std::chrono::duration<double, std::micro>(end - start).count();
}

}  // namespace

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  QApplication application(argc, argv);
  app::GenVar genVar;
  app::WindowSet windows;
  app::addWindows(windows, genVar);
  windows.open("fMain");
  for (const Entry& entry : entries) {
    windows.open(entry.window);
    auto* field = windows.loaded(entry.window)->findChild<QLineEdit*>(ui::toQt(entry.field));
    std::vector<double> times;
    for (int run = 0; run < runs; ++run)
      times.push_back(confirm(*field, entry.texts[static_cast<std::size_t>(run % 2)]));
    std::ranges::sort(times);
    std::printf("%-14s %-8s %8.1f us (median of %d)\n", entry.window, entry.field,
                times[times.size() / 2], runs);
  }
  windows.unload("fMain");
}
