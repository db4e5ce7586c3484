// On the display that is there: from the click in the launcher to the window painted, the first
// opening of each window and the median of more; from a key press to all fields of its window
// rewritten, by Enter in an entry field, which each time finds another text than the last, so that
// no result stays as it was, or by Space on a cell of the grid; from a stroke of the mouse on the
// grid to its cells painted, each before the next is reported.

#include "app/gen_var.h"
#include "app/program.h"
#include "app/window_set.h"
#include "app/windows.h"
#include "measure.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>

#include <array>
#include <chrono>
#include <cstdio>
#include <string>
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
constexpr int strokes = 51;

// Sees when a window or a control gets its next paint event.
class Painted : public QObject {
public:
  Painted() { qApp->installEventFilter(this); }

  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() == QEvent::Paint && receiver->objectName() == QLatin1String(name_))
      painted_ = true;
    return false;
  }

  // Milliseconds from the click until the window or control of that name has been painted and
  // handed to the display.
  template <typename Click>
  double after(const Click& click, const char* name) {
    name_ = name;
    painted_ = false;
    const auto start = Clock::now();
    click();
    while (!painted_) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const Milliseconds taken = Clock::now() - start;
    QCoreApplication::processEvents();
    return taken.count();
  }

private:
  const char* name_ = nullptr;
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

QWidget* cellOf(const QWidget& window, int pixel) {
  const std::string name = "chk(" + std::to_string(pixel) + ")";
  return window.findChild<QWidget*>(QLatin1String(name.c_str()));
}

// A stroke over the first cells of a blank grid, row by row and each from where the last one ended.
double strokeMilliseconds(Painted& painted, const QWidget& window, int cells) {
  std::vector<double> times;
  for (int i = 0; i < strokes; ++i) {
    window.findChild<QPushButton*>(QStringLiteral("cClear"))->click();
    QCoreApplication::processEvents();
    double taken = 0;
    QWidget* first = cellOf(window, 0);
    const auto report = [first](QEvent::Type type, const QWidget* cell) {
      const QPointF place = cell->mapToGlobal(cell->rect().center());
      const bool moved = type == QEvent::MouseMove;
      const bool released = type == QEvent::MouseButtonRelease;
      QMouseEvent event(type, first->mapFromGlobal(place), place,
                        moved ? Qt::NoButton : Qt::LeftButton,
                        released ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
      QCoreApplication::sendEvent(first, &event);
    };
    for (int n = 0; n < cells; ++n) {
      const int pixel = n / 5 % 2 == 0 ? n : n / 5 * 5 + 4 - n % 5;
      const QWidget* cell = cellOf(window, pixel);
      const auto type = n == 0 ? QEvent::MouseButtonPress : QEvent::MouseMove;
      const std::string name = cell->objectName().toStdString();
      taken += painted.after([&] { report(type, cell); }, name.c_str());
      if (n == cells - 1) report(QEvent::MouseButtonRelease, cell);
    }
    times.push_back(taken);
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
  std::puts("\n");
  QWidget& editor = *windows.loaded("fCustomCharacter");
  for (const int cells : {1, 40})
    std::printf("a stroke over %d of the grid's cells %.2f (median of %d)\n", cells,
                strokeMilliseconds(painted, editor, cells), strokes);
  std::puts(
      "\nAt most: 16 ms to open a window, fCustomCharacter 32; 1 ms for a key press; 8 ms for a "
      "cell, 32 for a stroke over 40");
  windows.unloadAll();
}
