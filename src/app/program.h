#pragma once

#include <QIcon>

#include <thread>

namespace tarnwick::app {

// The icon of the program's windows. Adding a size decodes it, so it has none that only a desktop's
// menu shows.
[[nodiscard]] QIcon programIcon();

// Reads the desktop's font configuration, a third of the instructions of a start, while the
// application object connects to the display. To be joined, where it is a thread at all, before
// the first text is measured: whoever comes earlier reads everything once more.
[[nodiscard]] std::thread readFontsAhead();

// Opens the launcher and answers the program's exit code when no window is left. The application
// object exists by then.
int run();

}  // namespace tarnwick::app
