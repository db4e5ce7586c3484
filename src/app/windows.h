#pragma once

#include "app/gen_var.h"
#include "app/window_set.h"

namespace tarnwick::app {

// Says how each window of the program is made. Both arguments outlive the windows.
void addWindows(WindowSet& windows, GenVar& genVar);

}  // namespace tarnwick::app
