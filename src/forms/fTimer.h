#pragma once

#include "common/oscillator.h"
#include "ui/entry_field.h"
#include "ui/widgets.h"

#include <cstdint>

namespace tarnwick::forms {

// Timer calculator: how often a timer overflows.
class fTimer : public ui::Window {
public:
  // The oscillator setting is the program's one; it outlives the window.
  explicit fTimer(common::OscillatorSetting& oscillator);

  // Reads the inputs and rewrites the four result fields.
  void DoCalc();

private:
  void layOut();
  void connectEvents();
  void Form_Load();

  void tOSC_Validate();
  void oType_Click(int index);
  void oPrescaller_Click(int index);
  void tPreLoad_Validate();
  void scrollpreload_Change();
  void tReload_Validate();
  void scrollreload_Change();

  ui::EntryField* tOSC;
  ui::OptionGroup* oType;
  ui::OptionGroup* oPrescaller;
  ui::EntryField* tPreLoad;
  ui::Slider* scrollpreload;
  ui::EntryField* tReload;
  ui::Slider* scrollreload;
  ui::ResultField* tFosc;
  ui::ResultField* tTicks;
  ui::ResultField* tResults;
  ui::ResultField* tFreq;

  common::OscillatorSetting& oscillator_;
  std::int32_t Prescale = 1;
  bool Is8Bit = true;
  bool OscPointTyped = false;
};

}  // namespace tarnwick::forms
