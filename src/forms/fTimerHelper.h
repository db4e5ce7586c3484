#pragma once

#include "calc/timer_search.h"
#include "common/oscillator.h"
#include "ui/entry_field.h"
#include "ui/widgets.h"

#include <cstdint>

namespace tarnwick::forms {

// Timer helper: which prescaler and preload give a wanted interrupt period or frequency.
class fTimerHelper : public ui::Window {
public:
  // The oscillator setting is the program's one; it outlives the window.
  explicit fTimerHelper(common::OscillatorSetting& oscillator);

  // Reads the inputs, moves the unit where the value asks for it and rewrites all results.
  void DoCalc();
  // Searches a timer of `Max` counts (256 or 65536) for what was read last and rewrites the results
  // of its width.
  void Calculate(int Max);

private:
  void layOut();
  void connectEvents();
  void Form_Load();

  void tOSC_Validate();
  void tOSC_GotFocus();
  void tDelay_Validate();
  void tReload_Validate();
  void HScroll1_Change();

  ui::EntryField* tOSC;
  ui::EntryField* tDelay;
  ui::OptionGroup* omSecuSec;
  ui::EntryField* tReload;
  ui::Slider* HScroll1;
  ui::ResultColumn* tPreload8;
  ui::ResultColumn* tPrescaler8;
  ui::ResultColumn* tCalc8;
  ui::ResultColumn* tERR8;
  ui::ResultColumn* tPreload16;
  ui::ResultColumn* tPrescaler16;
  ui::ResultColumn* tCalc16;
  ui::ResultColumn* tERR16;
  ui::ResultField* tfPreload8;
  ui::ResultField* tfPrescaler8;
  ui::ResultField* tfERR8;
  ui::ResultField* tfPreload16;
  ui::ResultField* tfPrescaler16;
  ui::ResultField* tfERR16;

  common::OscillatorSetting& oscillator_;
  calc::TimerGoal goal_;
  std::uint8_t MatchCount = 0;  // of the last search, which is the 16-bit one
  bool OscPointTyped = false;
  bool DelayPointTyped = false;
};

}  // namespace tarnwick::forms
