#pragma once

#include "calc/baud_rate.h"
#include "calc/serial_text.h"
#include "forms/rate_fields.h"
#include "forms/serial_inputs.h"
#include "ui/window.h"

#include <string>

namespace tarnwick::forms {

// USART calculator: the baud rate generator's settings for a wanted rate.
class fUSART : public ui::Window {
public:
  // The oscillator setting is the program's one; it outlives the window.
  explicit fUSART(common::OscillatorSetting& oscillator);

private:
  void layOut();
  void connectEvents();
  void Form_Load();
  void CalcUSART();

  void cCopyRegister_Click();
  void CopyClip_Click();
  [[nodiscard]] calc::UsartSetup setup() const;

  SerialInputs inputs_;
  RateFields row0_;
  RateFields row1_;
  RateFields best_;  // trERR, trCalcBaud, trSPBRG
  ui::ResultField* trSPBRGH;
  QPushButton* cCopyRegister;
  QPushButton* CopyClip;

  calc::UsartRows rows_;  // of the last calculation
  bool BestBRGH = false;
  std::string ClipText;
};

}  // namespace tarnwick::forms
