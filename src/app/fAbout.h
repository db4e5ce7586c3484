#pragma once

#include "ui/window.h"

namespace tarnwick::app {

// About box: title and version, where suggestions go, notice and disclaimer.
class fAbout : public ui::Window {
public:
  fAbout();
};

}  // namespace tarnwick::app
