#pragma once

#include "app/gen_var.h"
#include "app/window_set.h"

class QMenuBar;

namespace tarnwick::app {

// The launcher: one button for each calculator, and the program's four commands. Closing it closes
// every window and with the last of them the program.
class fMain : public ui::Window {
public:
  fMain(WindowSet& windows, GenVar& genVar);

private:
  void layOutPicture(QWidget* client);
  void layOutButtons(QWidget* client, double scale);
  QMenuBar* makeMenu();
  void Form_Load();
  void Form_Unload();

  WindowSet& windows_;
  GenVar& genVar_;
};

}  // namespace tarnwick::app
