// From a key press to all fields of its window rewritten: Enter in an entry field, which each time
// finds another text than the last, so that no result stays as it was; Space on a cell of the grid.

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
  const char* control;
  std::array<const char*, 2> texts;
  Qt::Key key = Qt::Key_Return;
};

constexpr std::array entries{Entry{"fTimer", "tOSC", {"4", "20"}},
                             Entry{"fTimerHelper", "tDelay", {"240", "250"}},
                             Entry{"fUSART", "BaudRate", {"9600", "19200"}},
                             Entry{"fEUSART", "BaudRate", {"9600", "19200"}},
                             Entry{"fSerinSerout2", "tBaud", {"9600", "2400"}},
                             Entry{"fPWM", "tFreq", {"5", "5.1"}},
                             Entry{"fMinADTime", "tImpedance", {"10", "2.5"}},
                             Entry{"fComparator", "tVdd", {"5", "3"}},
                             Entry{"fCustomCharacter", "chk(12)", {}, Qt::Key_Space}};
constexpr int presses = 2001;

double medianMicroseconds(QWidget& window, const Entry& entry) {
  auto* control = window.findChild<QWidget*>(QLatin1String(entry.control));
  auto* field = qobject_cast<QLineEdit*>(control);
  std::vector<double> times;
  for (std::size_t i = 0; i < presses; ++i) {
    control->setFocus();
    if (field != nullptr) field->setText(QLatin1String(entry.texts[i % 2]));
    QApplication::processEvents();
    QKeyEvent press(QEvent::KeyPress, entry.key, Qt::NoModifier);
    QKeyEvent release(QEvent::KeyRelease, entry.key, Qt::NoModifier);
    const auto start = std::chrono::steady_clock::now();
    QApplication::sendEvent(control, &press);
    QApplication::sendEvent(control, &release);
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
    std::printf("%-17s %-12s %7.1f us (median of %d)\n", entry.window, entry.control,
                medianMicroseconds(*windows.loaded(entry.window), entry), presses);
  }
  return 0;
}
