// From the click in the launcher to the window painted, on the display that is there: the first
// opening of each window, and the median of more.

#include "app/gen_var.h"
#include "app/program.h"
#include "app/window_set.h"
#include "app/windows.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QPushButton>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

struct Opening {
  const char* window;
  const char* button;
  double limit;  // milliseconds
};

constexpr std::array openings{Opening{"fTimer", "cTimer", 16},
                              Opening{"fTimerHelper", "cTimerHelper", 16},
                              Opening{"fUSART", "cUSART", 16},
                              Opening{"fEUSART", "cEUSART", 16},
                              Opening{"fSerinSerout2", "cSerinSerout2", 16},
                              Opening{"fPWM", "cPWM", 16},
                              Opening{"fMinADTime", "cAD", 16},
                              Opening{"fComparator", "Command1", 16},
                              Opening{"fCustomCharacter", "cCustomChar", 32},
                              Opening{"fAbout", "About", 16}};
constexpr int rounds = 51;

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
  double after(const std::function<void()>& click, const char* window) {
    window_ = window;
    painted_ = false;
    const auto start = std::chrono::steady_clock::now();
    click();
    while (!painted_) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const auto end = std::chrono::steady_clock::now();
    QCoreApplication::processEvents();
    return std::chrono::duration<double, std::milli>(end - start).count();
  }

private:
  const char* window_ = nullptr;
  bool painted_ = false;
};

std::function<void()> clickOn(QWidget& launcher, const char* name) {
  if (auto* button = launcher.findChild<QPushButton*>(QLatin1String(name)))
    return [button] { button->click(); };
  auto* command = launcher.findChild<QAction*>(QLatin1String(name));
  return [command] { command->trigger(); };
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

  std::array<std::vector<double>, openings.size()> times;
  for (int round = 0; round < rounds; ++round) {
    for (std::size_t i = 0; i < openings.size(); ++i)
      times[i].push_back(
          painted.after(clickOn(*windows.loaded("fMain"), openings[i].button), openings[i].window));
    for (const Opening& opening : openings) windows.unload(opening.window);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }

  std::printf("%-17s %9s %9s %9s   (ms from click to painted, median of %d)\n", "", "first",
              "median", "at most", rounds);
  for (std::size_t i = 0; i < openings.size(); ++i) {
    const double first = times[i].front();
    std::ranges::sort(times[i]);
    std::printf("%-17s %9.2f %9.2f %9.0f\n", openings[i].window, first, times[i][rounds / 2],
                openings[i].limit);
  }
  windows.unload("fMain");
}
