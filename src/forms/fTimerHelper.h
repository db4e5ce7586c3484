#pragma once

#include "calc/timer_helper.h"
#include "common/oscillator.h"
#include "ui/entry_field.h"
#include "ui/widgets.h"

#include <cstddef>

namespace tarnwick::forms {

// The result fields of one timer width: the matches, one a line, and the best of them.
struct WidthResults {
  ui::ResultColumn* tPreload = nullptr;
  ui::ResultColumn* tPrescaler = nullptr;
  ui::ResultColumn* tCalc = nullptr;
  ui::ResultColumn* tERR = nullptr;
  ui::ResultField* tfPreload = nullptr;
  ui::ResultField* tfPrescaler = nullptr;
  ui::ResultField* tfERR = nullptr;
};

// Timer helper: which prescaler and preload give a wanted interrupt period or frequency.
class fTimerHelper : public ui::Window {
public:
  // The oscillator setting is the program's one; it outlives the window.
  explicit fTimerHelper(common::OscillatorSetting& oscillator);

  // Reads the inputs, moves the unit where the value asks for it and rewrites all results.
  void DoCalc();
  // Rewrites the results of the timer of `Max` counts (256 or 65536) for what was read last.
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
  WidthResults results8_;
  WidthResults results16_;

  common::OscillatorSetting& oscillator_;
  calc::TimerHelperShown shown_;
  std::size_t MatchCount = 0;  // of the last search, which is the 16-bit one
  bool OscPointTyped = false;
  bool DelayPointTyped = false;
};

}  // namespace tarnwick::forms
