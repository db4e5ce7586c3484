#pragma once

#include "calc/baud_rate.h"
#include "calc/serial_text.h"
#include "forms/rate_fields.h"
#include "forms/serial_inputs.h"
#include "ui/window.h"

#include <array>
#include <string>

namespace tarnwick::forms {

// EUSART calculator: the settings of the baud rate generator with its 16-bit mode.
class fEUSART : public ui::Window {
public:
  // The oscillator setting is the program's one; it outlives the window.
  explicit fEUSART(common::OscillatorSetting& oscillator);

  // Shows the four rows of a calculation, the best of each group and the final best match.
  void showRows(const calc::EusartRows& rows);

private:
  void layOut();
  void connectEvents();
  void Form_Load();
  void CalcEUSART();
  void showFault();
  void showNoMatch();
  void showMatch(const calc::EusartRows& rows, std::optional<bool> brgh);
  void showMatch16(const calc::EusartRows& rows, std::optional<bool> brgh);
  void showFinalMatch(bool brg16);
  void enableCopying(bool enabled);

  void dropBRG16_Click();
  void cCopyRegister_Click();
  void CopyClip_Click();
  [[nodiscard]] calc::EusartSetup setup() const;

  SerialInputs inputs_;
  ui::EditableList* dropBRG16;
  std::array<RateFields, 4> rows_;
  RateFields best_;  // of the BRG16 = 0 group: trERR, trCalcBaud, trSPBRG
  ui::ResultField* trSPBRGH;
  RateFields best16_;  // of the BRG16 = 1 group: trERR16, trCalcBaud16, trSPBRG16
  ui::ResultField* trSPBRGH16;
  ui::ResultField* tfERR;
  ui::ResultField* tfCalcBaud;
  ui::ResultField* tfSPBRG;
  ui::ResultField* TSPBRGH;
  ui::ResultField* tfBRGH;
  ui::ResultField* tfBRG16;
  QPushButton* cCopyRegister;
  QPushButton* CopyClip;

  std::string ClipText;
};

}  // namespace tarnwick::forms
