#pragma once

namespace tarnwick::app {

// Gives the application object its name, its style and the icon of its windows.
void prepare();

// Reads the desktop's font configuration, a third of the instructions of a start, if that was not
// begun yet; otherwise waits until it is done. To be called on a thread of its own while the
// application object connects to the display, and again before the first text is measured: on a
// busy machine, that may come first.
void readFonts();

// Opens the launcher and answers the program's exit code when no window is left. The application
// object exists by then.
int run();

}  // namespace tarnwick::app
