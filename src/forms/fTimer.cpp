#include "forms/fTimer.h"

#include "calc/timer.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "forms/descriptions.h"
#include "forms/oscillator_field.h"
#include "ui/layout.h"
#include "ui/result_look.h"

#include <cstddef>
#include <string_view>

namespace tarnwick::forms {
namespace {

constexpr int bits8 = 1;  // oType indices
constexpr int bits16 = 2;
constexpr std::string_view widestResult = "00000.0000 mSec";

}  // namespace

fTimer::fTimer(common::OscillatorSetting& oscillator)
    : Window("fTimer", "Timer calc"), oscillator_(oscillator) {
  layOut();
  describe(*this);
  connectEvents();
  Form_Load();
}

void fTimer::layOut() {
  auto* fOSC = ui::group(this, "fOSC", "OSC(MHz)");
  tOSC = new ui::EntryField(fOSC, "tOSC",
                            {.keys = common::decimalKey,
                             .pointTyped = &OscPointTyped,
                             .clearsPointOnEntering = true,
                             .maxLength = 8});
  ui::row(fOSC, {tOSC});

  auto* fType = ui::group(this, "fType", "Type");
  oType = new ui::OptionGroup(fType, "oType");
  ui::row(fType, {oType->add(bits8, "8 Bits"), oType->add(bits16, "16 Bits")});

  auto* fPreScaller = ui::group(this, "fPreScaller", "Prescaler");
  oPrescaller = new ui::OptionGroup(fPreScaller, "oPrescaller");
  auto* prescalers = ui::grid(fPreScaller);
  for (int i = 0; const int ratio : calc::timerPrescalers) {
    prescalers->addWidget(oPrescaller->add(i, "1:" + common::wholeText(ratio)), i / 3, i % 3);
    ++i;
  }

  auto* fPreLoad = ui::group(this, "fPreLoad", "Pre-Load (decimal)");
  tPreLoad = new ui::EntryField(fPreLoad, "tPreLoad",
                                {.validatesOnFocusLost = true, .maxLength = 5, .widest = "000000"});
  scrollpreload = new ui::Slider(fPreLoad, "scrollpreload", 0, 255);
  ui::nameAfter(scrollpreload, "Pre-Load slider");
  ui::row(fPreLoad, {tPreLoad, scrollpreload});

  auto* Frame1 = ui::group(this, "Frame1", "Re-load (instr cycle)");
  tReload = new ui::EntryField(Frame1, "tReload", {.widest = "000000"});
  scrollreload = new ui::Slider(Frame1, "scrollreload", 1, 15);
  ui::nameAfter(scrollreload, "Re-load slider");
  ui::row(Frame1, {tReload, scrollreload});

  auto* fResults = ui::group(this, "fResults", "Results");
  auto* results = ui::grid(fResults);
  tFosc = new ui::ResultField(fResults, "tFosc", widestResult);
  tTicks = new ui::ResultField(fResults, "tTicks", widestResult);
  tResults = new ui::ResultField(fResults, "tResults", widestResult, ui::Weight::Answer);
  tFreq = new ui::ResultField(fResults, "tFreq", widestResult, ui::Weight::Answer);
  ui::labelledRow(results, "Text3(0)", "Fosc :", tFosc);  // shows Fosc / 4; the label is contract
  ui::labelledRow(results, "Text3(1)", "Ticks :", tTicks);
  ui::labelledRow(results, "Text3(2)", "Interrupt each :", tResults);
  ui::labelledRow(results, "Text3(3)", "Frequency :", tFreq);
  ui::packTopLeft(results);

  auto* window = ui::grid(this);
  window->addWidget(fOSC, 0, 0);
  window->addWidget(fType, 0, 1);
  window->addWidget(fPreScaller, 1, 0, 1, 2);
  window->addWidget(fPreLoad, 2, 0, 1, 2);
  window->addWidget(Frame1, 3, 0, 1, 2);
  window->addWidget(fResults, 4, 0, 1, 2);
  ui::dimWhileEdited(tOSC, tFosc, ui::resultsOf(*this));
  for (ui::EntryField* field : {tPreLoad, tReload}) ui::dimWhileEdited(field, tResults, {tFreq});
  ui::fixToContent(this);
}

void fTimer::connectEvents() {
  connect(tOSC, &ui::EntryField::validate, this, &fTimer::tOSC_Validate);
  connect(tOSC, &ui::EntryField::focusLost, this, &fTimer::DoCalc);
  connect(oType, &ui::OptionGroup::chosen, this, &fTimer::oType_Click);
  connect(oPrescaller, &ui::OptionGroup::chosen, this, &fTimer::oPrescaller_Click);
  connect(tPreLoad, &ui::EntryField::validate, this, &fTimer::tPreLoad_Validate);
  connect(scrollpreload, &ui::Slider::moved, this, &fTimer::scrollpreload_Change);
  connect(tReload, &ui::EntryField::validate, this, &fTimer::tReload_Validate);
  connect(tReload, &ui::EntryField::entered, this, &fTimer::DoCalc);
  connect(scrollreload, &ui::Slider::moved, this, &fTimer::scrollreload_Change);
}

void fTimer::Form_Load() {
  tOSC->setContents("4");
  tPreLoad->setContents("0");
  oType->select(bits8);
  oPrescaller->select(0);
  scrollpreload->setRangeAndPosition(0, 255, 0);
  scrollreload->setRangeAndPosition(1, 15, 7);
  DoCalc();
}

void fTimer::DoCalc() {
  const calc::TimerShown shown = calc::showTimer({.foscMHz = tOSC->number(),
                                                  .is8Bit = Is8Bit,
                                                  .prescale = Prescale,
                                                  .preload = tPreLoad->number(),
                                                  .reloadCycles = tReload->number()});
  tFosc->setContents(shown.instructionClock);
  tTicks->setContents(shown.instructionCycle);
  tResults->setContents(shown.period);
  tFreq->setContents(shown.frequency);
}

void fTimer::tOSC_Validate() {
  validateOscillator(*this, *tOSC, oscillator_, [this] { DoCalc(); });
}

void fTimer::oType_Click(int index) {
  if (index == bits16) oPrescaller->select(0);
  Is8Bit = index == bits8;
  const calc::PreloadSlider slider = calc::preloadSlider(Is8Bit);
  scrollpreload->setRangeAndPosition(slider.minimum, slider.maximum, slider.minimum);
  DoCalc();
}

void fTimer::oPrescaller_Click(int index) {
  Prescale = calc::timerPrescalers.at(static_cast<std::size_t>(index));
  DoCalc();
}

// The slider keeps the preload in its range and writes it back, as that of the reload does.
void fTimer::tPreLoad_Validate() {
  scrollpreload->refreshPosition(calc::preloadPosition(tPreLoad->number(), Is8Bit));
}

void fTimer::scrollpreload_Change() {
  tPreLoad->setContents(calc::preloadText(scrollpreload->value(), Is8Bit));
  DoCalc();
}

void fTimer::tReload_Validate() {
  scrollreload->refreshPosition(common::toWhole<std::int32_t>(tReload->number()));
}

void fTimer::scrollreload_Change() {
  tReload->setContents(common::wholeText(scrollreload->value()));
  DoCalc();
}

}  // namespace tarnwick::forms
