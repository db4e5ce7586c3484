#pragma once

namespace tarnwick::ui {

// Tells the toolkit how assistive tools see and operate the controls of this program where it
// would not do so itself. May be called again; every window does.
void serveAssistiveTools();

}  // namespace tarnwick::ui
