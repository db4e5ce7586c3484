#include "forms/fTimer.h"

#include "calc/timer.h"
#include "common/number_text.h"
#include "common/rounding.h"
#include "forms/oscillator_field.h"
#include "ui/layout.h"

#include <cmath>

namespace tarnwick::forms {
namespace {

constexpr int bits8 = 1;  // oType indices
constexpr int bits16 = 2;
constexpr int halfOf16Bits = 32768;  // the 16-bit preload slider stands at the preload less this
constexpr std::string_view timePattern = "###0.0###";
constexpr std::string_view frequencyPattern = "####.0##";

}  // namespace

fTimer::fTimer(common::OscillatorSetting& oscillator)
    : Window("fTimer", "Timer calc"), oscillator_(oscillator) {
  layOut();
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
  ui::nameAfter(tOSC, "OSC(MHz)");
  ui::row(fOSC, {tOSC});

  auto* fType = ui::group(this, "fType", "Type");
  oType = new ui::OptionGroup(fType, "oType", {{bits8, "8 Bits"}, {bits16, "16 Bits"}});
  ui::row(fType, {oType->button(bits8), oType->button(bits16)});

  auto* fPreScaller = ui::group(this, "fPreScaller", "Prescaler");
  oPrescaller = new ui::OptionGroup(fPreScaller, "oPrescaller",
                                    {{0, "1:1"},
                                     {1, "1:2"},
                                     {2, "1:4"},
                                     {3, "1:8"},
                                     {4, "1:16"},
                                     {5, "1:32"},
                                     {6, "1:64"},
                                     {7, "1:128"},
                                     {8, "1:256"}});
  auto* prescalers = ui::grid(fPreScaller);
  for (int i = 0; i < 9; ++i) prescalers->addWidget(oPrescaller->button(i), i / 3, i % 3);

  auto* fPreLoad = ui::group(this, "fPreLoad", "Pre-Load (decimal)");
  tPreLoad = new ui::EntryField(fPreLoad, "tPreLoad",
                                {.validatesOnFocusLost = true, .maxLength = 5, .widest = "000000"});
  scrollpreload = new ui::Slider(fPreLoad, "scrollpreload", 0, 255);
  ui::nameAfter(tPreLoad, "Pre-Load (decimal)");
  ui::nameAfter(scrollpreload, "Pre-Load slider");
  ui::row(fPreLoad, {tPreLoad, scrollpreload});

  auto* Frame1 = ui::group(this, "Frame1", "Re-load (instr cycle)");
  tReload = new ui::EntryField(Frame1, "tReload", {.widest = "000000"});
  scrollreload = new ui::Slider(Frame1, "scrollreload", 1, 15);
  ui::nameAfter(tReload, "Re-load (instr cycle)");
  ui::nameAfter(scrollreload, "Re-load slider");
  ui::row(Frame1, {tReload, scrollreload});

  auto* fResults = ui::group(this, "fResults", "Results");
  auto* results = ui::grid(fResults);
  tFosc = new ui::ResultField(fResults, "tFosc", "0000000.0000 MHz");
  tTicks = new ui::ResultField(fResults, "tTicks", "0000000.0000 uSec");
  tResults = new ui::ResultField(fResults, "tResults", "0000000.0000 mSec");
  tFreq = new ui::ResultField(fResults, "tFreq", "0000000.000 KHz");
  ui::labelledRow(results, "Text3(0)", "Fosc :", tFosc);
  ui::labelledRow(results, "Text3(1)", "Ticks :", tTicks);
  ui::labelledRow(results, "Text3(2)", "Interrupt each :", tResults);
  ui::labelledRow(results, "Text3(3)", "Frequency :", tFreq);

  auto* window = ui::grid(this);
  window->addWidget(fOSC, 0, 0);
  window->addWidget(fType, 0, 1);
  window->addWidget(fPreScaller, 1, 0, 1, 2);
  window->addWidget(fPreLoad, 2, 0, 1, 2);
  window->addWidget(Frame1, 3, 0, 1, 2);
  window->addWidget(fResults, 4, 0, 1, 2);
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
  const calc::TimerResult result = calc::timerResult({.foscMHz = tOSC->number(),
                                                      .is8Bit = Is8Bit,
                                                      .prescale = Prescale,
                                                      .preload = tPreLoad->number(),
                                                      .reloadCycles = tReload->number()});
  using common::formatWithUnit;
  tFosc->setContents(formatWithUnit(result.Fcy, timePattern, " MHz"));
  tTicks->setContents(formatWithUnit(result.Tcy, timePattern, " uSec"));
  tFreq->setContents(result.FreqKHz <= 1
                         ? formatWithUnit(result.FreqKHz * 1000, frequencyPattern, " Hz")
                         : formatWithUnit(result.FreqKHz, frequencyPattern, " KHz"));
  tResults->setContents(result.Period < 1000
                            ? formatWithUnit(result.Period, timePattern, " uSec")
                            : formatWithUnit(result.Period / 1000, timePattern, " mSec"));
}

void fTimer::tOSC_Validate() {
  validateOscillator(*this, *tOSC, oscillator_, [this] { DoCalc(); });
}

void fTimer::oType_Click(int index) {
  if (index == bits8) {
    Is8Bit = true;
    scrollpreload->setRangeAndPosition(0, 255, 0);
  } else {
    oPrescaller->select(0);
    Is8Bit = false;
    scrollpreload->setRangeAndPosition(-halfOf16Bits, halfOf16Bits - 1, -halfOf16Bits);
  }
  DoCalc();
}

void fTimer::oPrescaller_Click(int index) {
  Prescale = common::toWhole<std::int32_t>(std::pow(2, index));
  DoCalc();
}

void fTimer::tPreLoad_Validate() {
  const std::int32_t most = Is8Bit ? 255 : 65535;
  if (tPreLoad->number() > most) tPreLoad->setContents(common::wholeText(most));
  const double position = tPreLoad->number() - preloadAtZero();
  scrollpreload->refreshPosition(common::toWhole<std::int32_t>(position));
  DoCalc();
}

void fTimer::scrollpreload_Change() {
  tPreLoad->setContents(common::numberText(scrollpreload->value() + preloadAtZero()));
  DoCalc();
}

int fTimer::preloadAtZero() const {
  return Is8Bit ? 0 : halfOf16Bits;
}

// The slider keeps the reload in its range and writes it back.
void fTimer::tReload_Validate() {
  scrollreload->refreshPosition(common::toWhole<std::int32_t>(tReload->number()));
  DoCalc();
}

void fTimer::scrollreload_Change() {
  tReload->setContents(common::wholeText(scrollreload->value()));
  DoCalc();
}

}  // namespace tarnwick::forms
