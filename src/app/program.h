#pragma once

namespace tarnwick::app {

// Gives the application object its name, its style and the icon of its windows.
void prepare();

// Opens the launcher and answers the program's exit code when no window is left. The application
// object exists by then.
int run();

}  // namespace tarnwick::app
