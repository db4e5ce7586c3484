#pragma once

#include "calc/pwm.h"
#include "common/oscillator.h"
#include "ui/entry_field.h"
#include "ui/widgets.h"

namespace tarnwick::forms {

// PWM calculator: which Timer2 settings give a wanted PWM frequency and duty cycle.
class fPWM : public ui::Window {
public:
  // The oscillator setting is the program's one; it outlives the window.
  explicit fPWM(common::OscillatorSetting& oscillator);

private:
  QWidget* layOutFrequency();
  void layOut();
  void connectEvents();
  void Form_Load();

  // Reads the inputs, rewrites all results and goes to the frequency when nothing matches.
  void CalcPWM();
  void rewriteResults();
  [[nodiscard]] calc::PwmInputs inputs() const;
  // Rewrites the duty columns of the matches found last.
  void CalcDuty();
  void showDuty();
  void enableDuty(bool on);

  void tOSC_Validate();
  void tFreq_Validate();
  void tDuty_Validate();
  void scrollduty_Change();

  ui::EntryField* tOSC;
  ui::EntryField* tDuty;
  ui::Slider* scrollduty;
  ui::ResultField* tMinFreq;
  ui::ResultField* tMaxFreq;
  ui::EntryField* tFreq;
  ui::OptionGroup* oHzKhz;
  ui::ResultColumn* tCalc;
  ui::ResultColumn* tPrescaler;
  ui::ResultColumn* tResolution;
  ui::ResultColumn* trMaxPR2;
  ui::ResultColumn* trDutyStep;
  ui::ResultColumn* tPrescaler2;
  ui::ResultColumn* tPR2;
  ui::ResultColumn* tDecimal;
  ui::ResultColumn* tCalcDuty;

  common::OscillatorSetting& oscillator_;
  calc::PwmShown shown_;
  bool FreqPointTyped = false;
  bool OscPointTyped = false;
};

}  // namespace tarnwick::forms
