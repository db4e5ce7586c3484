#pragma once

#include "ui/window.h"

namespace tarnwick::forms {

// Gives the controls of a calculator window their sentences, found by the window's name. Called
// when all controls are there.
void describe(ui::Window& window);

}  // namespace tarnwick::forms
