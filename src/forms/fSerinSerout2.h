#pragma once

#include "calc/ser2_mode.h"
#include "forms/baud_controls.h"
#include "ui/window.h"

namespace tarnwick::forms {

// SERIN2/SEROUT2 calculator: the mode number of the software serial commands.
class fSerinSerout2 : public ui::Window {
public:
  fSerinSerout2();

private:
  void layOut();
  void layOutResults();
  void connectEvents();
  void Form_Load();
  void CalcMode();
  [[nodiscard]] calc::Ser2Inputs inputs() const;
  void show(calc::Ser2Shown shown);
  void placeMode(int labelLeft);

  void tBaud_Validate();
  void cCopyClip_Click();

  BaudControls inputs_;
  ui::EntryField* tBaud;
  ui::OptionGroup* oOutput;
  ui::OptionGroup* oConversion;
  ui::OptionGroup* oParity;
  QGroupBox* fResults;
  QLabel* tLabel;
  ui::ResultField* tMode;
  QPushButton* cCopyClip;

  calc::Ser2Shown shown_;
  bool BaudPointTyped = false;
};

}  // namespace tarnwick::forms
