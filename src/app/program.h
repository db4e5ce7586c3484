#pragma once

#include <QIcon>

namespace tarnwick::app {

// The program's icon in all its sizes.
[[nodiscard]] QIcon programIcon();

// Opens the launcher and answers the program's exit code when no window is left. The application
// object exists by then.
int run();

}  // namespace tarnwick::app
