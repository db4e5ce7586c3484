#pragma once

#include "app/gen_var.h"
#include "app/window_set.h"

#include <QIcon>

namespace tarnwick::app {

// Says how each window of the program is made. Both arguments outlive the windows.
void addWindows(WindowSet& windows, GenVar& genVar);

// The program's icon in all its sizes.
[[nodiscard]] QIcon programIcon();

}  // namespace tarnwick::app
