// On the display that is there: from the click in the launcher to the window painted, the first
// opening of each window and the median of more; from a key press to all fields of its window
// rewritten, by Enter in an entry field, which each time finds another text than the last, so that
// no result stays as it was, or by Space on a cell of the grid.

#include "app/gen_var.h"
#include "app/program.h"
#include "app/window_set.h"
#include "app/windows.h"
#include "measure.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

#include <array>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

using tarnwick::bench::median;
using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

struct Measured {
  const char* window;
  const char* button;
  const char* control = nullptr;  // in which the key is pressed
  std::array<const char*, 2> texts{};
};

constexpr std::array<Measured, 10> all{
    {{"fTimer", "cTimer", "tOSC", {"4", "20"}},
     {"fTimerHelper", "cTimerHelper", "tDelay", {"240", "250"}},
     {"fUSART", "cUSART", "BaudRate", {"9600", "19200"}},
     {"fEUSART", "cEUSART", "BaudRate", {"9600", "19200"}},
     {"fSerinSerout2", "cSerinSerout2", "tBaud", {"9600", "2400"}},
     {"fPWM", "cPWM", "tFreq", {"5", "5.1"}},
     {"fMinADTime", "cAD", "tImpedance", {"10", "2.5"}},
     {"fComparator", "Command1", "tVdd", {"5", "3"}},
     {"fCustomCharacter", "cCustomChar", "chk(12)"},
     {"fAbout", "About"}}};
constexpr int openings = 51;
constexpr int presses = 2001;

// Sees when a window gets its first paint event.
class Painted : public QObject {
public:
  Painted() { qApp->installEventFilter(this); }

  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() == QEvent::Paint && receiver->objectName() == QLatin1String(window_))
      painted_ = true;
    return false;
  }

  // Milliseconds from the click until the window has been painted and handed to the display.
  template <typename Click>
  double after(const Click& click, const char* window) {
    window_ = window;
    painted_ = false;
    const auto start = Clock::now();
    click();
    while (!painted_) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const Milliseconds taken = Clock::now() - start;
    QCoreApplication::processEvents();
    return taken.count();
  }

private:
  const char* window_ = nullptr;
  bool painted_ = false;
};

double openingMilliseconds(Painted& painted, QWidget& launcher, const Measured& measured) {
  const auto name = QLatin1String(measured.button);
  if (auto* button = launcher.findChild<QPushButton*>(name))
    return painted.after([&] { button->click(); }, measured.window);
  auto* command = launcher.findChild<QAction*>(name);
  return painted.after([&] { command->trigger(); }, measured.window);
}

double keyPressMilliseconds(QWidget& window, const Measured& measured) {
  auto* control = window.findChild<QWidget*>(QLatin1String(measured.control));
  auto* field = qobject_cast<QLineEdit*>(control);
  const Qt::Key key = field != nullptr ? Qt::Key_Return : Qt::Key_Space;
  std::vector<double> times;
  for (std::size_t i = 0; i < presses; ++i) {
    control->setFocus();
    if (field != nullptr) field->setText(QLatin1String(measured.texts[i % 2]));
    QCoreApplication::processEvents();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    const auto start = Clock::now();
    QCoreApplication::sendEvent(control, &press);
    QCoreApplication::sendEvent(control, &release);
    times.push_back(Milliseconds(Clock::now() - start).count());
  }
  return median(times);
}

}  // namespace

int main(int argc, char* argv[]) {
  using namespace tarnwick;
  QApplication application(argc, argv);
  app::prepare();
  app::GenVar genVar;
  app::WindowSet windows;
  app::addWindows(windows, genVar);
  Painted painted;
  painted.after([&] { windows.open("fMain"); }, "fMain");

  std::array<std::vector<double>, all.size()> times;
  for (int round = 0; round < openings; ++round) {
    for (std::size_t i = 0; i < all.size(); ++i)
      times[i].push_back(openingMilliseconds(painted, *windows.loaded("fMain"), all[i]));
    for (const Measured& each : all) windows.loaded(each.window)->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }

  std::printf("%-17s %9s %9s %9s   (ms; medians of %d openings, %d presses)\n", "", "first",
              "opening", "key press", openings, presses);
  for (std::size_t i = 0; i < all.size(); ++i) {
    std::printf("%-17s %9.2f %9.2f", all[i].window, times[i].front(), median(times[i]));
    if (all[i].control == nullptr) continue;
    windows.open(all[i].window);
    QCoreApplication::processEvents();
    std::printf(" %9.3f\n", keyPressMilliseconds(*windows.loaded(all[i].window), all[i]));
  }
  std::puts("\nAt most: 16 ms to open a window, fCustomCharacter 32; 1 ms for a key press");
  windows.unloadAll();
}
