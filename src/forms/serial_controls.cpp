#include "forms/serial_controls.h"

#include "forms/oscillator_field.h"
#include "ui/layout.h"

#include <string>
#include <utility>

namespace tarnwick::forms {
namespace {

QGroupBox* makeOscGroup(ui::Window* window) {
  return ui::group(window, "fOscillator", "OSC (MHz)");
}

ui::EntryField* makeOscField(QGroupBox* group, bool* pointTyped) {
  auto* field = new ui::EntryField(group, "fOSC",
                                   {.keys = common::decimalKey,
                                    .pointTyped = pointTyped,
                                    .clearsPointOnEntering = true,
                                    .validatesOnFocusLost = true,
                                    .maxLength = 8});
  ui::row(group, {field});
  return field;
}

}  // namespace

SerialControls::SerialControls(ui::Window* window, common::OscillatorSetting& oscillator,
                               int maxBaudLength, std::function<void()> recalculate)
    : oscGroup(makeOscGroup(window)),
      fOSC(makeOscField(oscGroup, &OscPointTyped)),
      rate(window, "BaudRate",
           {.keys = common::decimalKey,
            .pointTyped = &BaudPointTyped,
            .validatesOnFocusLost = true,
            .maxLength = maxBaudLength},
           BaudControls::Choice::TextFirst, recalculate),
      BaudRate(rate.field),
      window_(window),
      oscillator_(oscillator),
      recalculate_(std::move(recalculate)) {
  QObject::connect(fOSC, &ui::EntryField::validate, window, [this] { fOSC_Validate(); });
  QObject::connect(fOSC, &ui::EntryField::entered, window, [this] { BaudRate->setFocus(); });
  QObject::connect(BaudRate, &ui::EntryField::validate, window, [this] { BaudRate_Validate(); });
}

void SerialControls::load() {
  fOSC->setContents("20");
  rate.chooseDefault();
  recalculate_();
}

void SerialControls::clearPointFlags() {
  OscPointTyped = false;
  BaudPointTyped = false;
}

calc::BaudInputs SerialControls::inputs() const {
  return {.foscMHz = fOSC->number(), .rate = BaudRate->number(), .kBaud = rate.cKBaud->isChecked()};
}

calc::SerialGoal SerialControls::goal() const {
  return {.baud = BaudRate->contents(), .kBaud = rate.cKBaud->isChecked(), .osc = fOSC->contents()};
}

void SerialControls::fOSC_Validate() {
  validateOscillator(*window_, *fOSC, oscillator_, recalculate_);
}

void SerialControls::BaudRate_Validate() {
  if (BaudRate->contents().empty()) BaudRate->setContents(rate.BaudDropList->contents());
  if (BaudRate->number() <= 0) BaudRate->setContents("1");
  recalculate_();
}

}  // namespace tarnwick::forms
