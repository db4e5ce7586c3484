#pragma once

#include "calc/adc.h"
#include "common/oscillator.h"
#include "ui/entry_field.h"
#include "ui/widgets.h"

namespace tarnwick::forms {

// A/D calculator: which conversion clock and acquisition time suit a source impedance.
class fMinADTime : public ui::Window {
public:
  // The oscillator setting is the program's one; it outlives the window.
  explicit fMinADTime(common::OscillatorSetting& oscillator);

private:
  void layOut();
  void connectEvents();
  void Form_Load();

  // Reads the inputs, rewrites the three result fields and keeps what a copy is built from.
  void CalcADC();

  void tOSC_Validate();
  void tImpedance_Validate();
  void cKohm_Click();
  void cCopyClip_Click();

  ui::EntryField* tOSC;
  ui::EntryField* tImpedance;
  QCheckBox* cKohm;
  ui::OptionGroup* oADCBits;
  ui::ResultField* tADClock;
  ui::ResultField* tMinTad;
  ui::ResultField* tMinTaq;
  QPushButton* cCopyClip;

  common::OscillatorSetting& oscillator_;
  calc::AdcShown shown_;
  bool OscPointTyped = false;
  bool ImpedancePointTyped = false;
};

}  // namespace tarnwick::forms
