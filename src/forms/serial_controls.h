#pragma once

#include "calc/serial_text.h"
#include "common/oscillator.h"
#include "forms/baud_controls.h"

#include <functional>

namespace tarnwick::forms {

// What the windows of the two hardware serial ports ask for: the oscillator and the wanted rate,
// with their events. Every change of an input ends in the window's recalculation.
class SerialControls {
public:
  // `maxBaudLength` limits the text of the rate. The oscillator setting outlives the window.
  SerialControls(ui::Window* window, common::OscillatorSetting& oscillator, int maxBaudLength,
                 std::function<void()> recalculate);
  SerialControls(const SerialControls&) = delete;
  SerialControls& operator=(const SerialControls&) = delete;

  // Fills the fields as they are when the window opens, and recalculates.
  void load();
  // Both fields accept a decimal point again.
  void clearPointFlags();
  // What the fields ask for.
  [[nodiscard]] calc::BaudInputs inputs() const;
  // The fields' texts, for the set-up texts.
  [[nodiscard]] calc::SerialGoal goal() const;

  bool OscPointTyped = false;
  bool BaudPointTyped = false;
  QGroupBox* oscGroup;
  ui::EntryField* fOSC;
  BaudControls rate;
  ui::EntryField* BaudRate;

private:
  void fOSC_Validate();
  void BaudRate_Validate();

  ui::Window* window_;
  common::OscillatorSetting& oscillator_;
  std::function<void()> recalculate_;
};

}  // namespace tarnwick::forms
