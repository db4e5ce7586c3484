// From the press of Enter in an entry field to all fields of its window rewritten. Each press
// finds another text in the field than the last, so that no result stays as it was.

#include "app/gen_var.h"
#include "app/window_set.h"
#include "app/windows.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <vector>

namespace {

struct Entry {
  const char* window;
  const char* field;
  std::array<const char*, 2> texts;
};

constexpr std::array entries{Entry{"fTimer", "tOSC", {"4", "20"}},
                             Entry{"fTimerHelper", "tDelay", {"240", "250"}},
                             Entry{"fUSART", "BaudRate", {"9600", "19200"}},
                             Entry{"fEUSART", "BaudRate", {"9600", "19200"}},
                             Entry{"fSerinSerout2", "tBaud", {"9600", "2400"}},
                             Entry{"fPWM", "tFreq", {"5", "5.1"}},
                             Entry{"fMinADTime", "tImpedance", {"10", "2.5"}},
                             Entry{"fComparator", "tVdd", {"5", "3"}}};
constexpr int presses = 2001;

double medianMicroseconds(QWidget& window, const Entry& entry) {
  auto* field = window.findChild<QLineEdit*>(QLatin1String(entry.field));
  std::vector<double> times;
  for (std::size_t i = 0; i < presses; ++i) {
    field->setFocus();
    field->setText(QLatin1String(entry.texts[i % 2]));
    QApplication::processEvents();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    const auto start = std::chrono::steady_clock::now();
    QApplication::sendEvent(field, &press);
    const std::chrono::duration<double, std::micro> taken =
        std::chrono::steady_clock::now() - start;
    times.push_back(taken.count());
  }
  std::ranges::sort(times);
  return times[times.size() / 2];
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  tarnwick::app::GenVar genVar;
  tarnwick::app::WindowSet windows;
  tarnwick::app::addWindows(windows, genVar);
  windows.open("fMain");
  for (const Entry& entry : entries) {
    windows.open(entry.window);
    QApplication::processEvents();
    std::printf("%-14s %-12s %7.1f us (median of %d)\n", entry.window, entry.field,
                medianMicroseconds(*windows.loaded(entry.window), entry), presses);
  }
  return 0;
}
