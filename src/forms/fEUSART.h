#pragma once

#include "calc/eusart.h"
#include "forms/rate_fields.h"
#include "forms/serial_controls.h"
#include "ui/window.h"

#include <array>
#include <string>

namespace tarnwick::forms {

// EUSART calculator: the settings of the baud rate generator with its 16-bit mode.
class fEUSART : public ui::Window {
public:
  // The oscillator setting is the program's one; it outlives the window.
  explicit fEUSART(common::OscillatorSetting& oscillator);

private:
  void layOut();
  void connectEvents();
  void Form_Load();
  void CalcEUSART();
  void show(calc::EusartShown shown);
  void enableCopying();
  void copy(std::string text);

  void dropBRG16_Click();
  void cCopyRegister_Click();
  void CopyClip_Click();

  SerialControls inputs_;
  ui::EditableList* dropBRG16;
  std::array<RateFields, 4> rows_;
  RateFields best_;           // of the BRG16 = 0 group: trERR, trCalcBaud, trSPBRG
  ui::ResultField* trSPBRGH;  // shows BRGH, as trSPBRGH16 does; the names are contract
  RateFields best16_;         // of the BRG16 = 1 group: trERR16, trCalcBaud16, trSPBRG16
  ui::ResultField* trSPBRGH16;
  RateFields final_;  // tfERR, tfCalcBaud, tfSPBRG, TSPBRGH
  ui::ResultField* tfBRGH;
  ui::ResultField* tfBRG16;
  QPushButton* cCopyRegister;
  QPushButton* CopyClip;

  calc::EusartShown shown_;
  std::string ClipText;
};

}  // namespace tarnwick::forms
