// Memory after every window, the launcher too, was opened, painted and closed again and again:
// what the process has allocated, and what of it is resident. Prints both after the first rounds
// and after all, and fails where one has grown by more than 2 %.
//   memory_bench [rounds [first rounds]]

#include "app/gen_var.h"
#include "app/window_set.h"
#include "app/windows.h"
#include "measure.h"

#include <QApplication>
#include <QEvent>
#include <QPushButton>

#include <cstdio>
#include <cstdlib>
#include <malloc.h>

namespace {

struct Memory {
  double allocated = 0;  // MiB
  double resident = 0;   // MiB
};

Memory memory() {
  const struct mallinfo2 heap = mallinfo2();
  return {.allocated = static_cast<double>(heap.uordblks + heap.hblkhd) / (1024 * 1024),
          .resident = static_cast<double>(tarnwick::bench::residentKiB()) / 1024};
}

void settle() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

// Closing the launcher closes all others.
void openAndCloseAll(tarnwick::app::WindowSet& windows) {
  windows.open("fMain");
  for (auto* button : windows.loaded("fMain")->findChildren<QPushButton*>()) button->click();
  windows.open("fAbout");
  settle();
  if (QApplication::topLevelWidgets().size() < 11) std::abort();
  windows.loaded("fMain")->close();
  settle();
  if (windows.loaded("fAbout") != nullptr) std::abort();
}

bool report(const char* what, int first, double atFirst, int rounds, double atEnd) {
  const double growth = (atEnd / atFirst - 1) * 100;
  std::printf("%-10s %8.2f MiB after %d  %8.2f MiB after %d  %+6.2f %%\n", what, atFirst, first,
              atEnd, rounds, growth);
  return growth <= 2;
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 1000;
  const int first = argc > 2 ? std::atoi(argv[2]) : 50;
  tarnwick::app::GenVar genVar;
  tarnwick::app::WindowSet windows;
  tarnwick::app::addWindows(windows, genVar);

  Memory atFirst;
  for (int round = 1; round <= rounds; ++round) {
    openAndCloseAll(windows);
    if (round == first) atFirst = memory();
  }
  const Memory atEnd = memory();
  const bool allocated = report("allocated", first, atFirst.allocated, rounds, atEnd.allocated);
  const bool resident = report("resident", first, atFirst.resident, rounds, atEnd.resident);
  return allocated && resident ? EXIT_SUCCESS : EXIT_FAILURE;
}
