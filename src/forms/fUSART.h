#pragma once

#include "calc/usart.h"
#include "forms/rate_fields.h"
#include "forms/serial_controls.h"
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
  void copy(std::string text);

  SerialControls inputs_;
  RateFields row0_;
  RateFields row1_;
  RateFields best_;           // trERR, trCalcBaud, trSPBRG
  ui::ResultField* trSPBRGH;  // shows BRGH; the name is contract
  QPushButton* cCopyRegister;
  QPushButton* CopyClip;

  calc::UsartShown shown_;
  std::string ClipText;
};

}  // namespace tarnwick::forms
