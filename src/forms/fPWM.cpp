#include "forms/fPWM.h"

#include "common/number_text.h"
#include "common/rounding.h"
#include "forms/descriptions.h"
#include "forms/oscillator_field.h"
#include "ui/layout.h"
#include "ui/result_look.h"

#include <utility>

namespace tarnwick::forms {
namespace {

constexpr int inHz = 0;  // oHzKhz indices
constexpr int inKHz = 1;
constexpr int lines = static_cast<int>(calc::pwmPrescalers.size());

}  // namespace

fPWM::fPWM(common::OscillatorSetting& oscillator)
    : Window("fPWM", "PWM Calc"), oscillator_(oscillator) {
  layOut();
  describe(*this);
  connectEvents();
  Form_Load();
}

QWidget* fPWM::layOutFrequency() {
  auto* Frame3 = ui::group(this, "Frame3", "Frequency");
  auto* frequency = ui::grid(Frame3);
  auto* limits = ui::grid(nullptr);
  limits->setContentsMargins(0, 0, 0, 0);
  frequency->addLayout(limits, 0, 0);
  tMinFreq = new ui::ResultField(Frame3, "tMinFreq", "0000.000 KHz");
  tMaxFreq = new ui::ResultField(Frame3, "tMaxFreq", "0000.000 KHz");
  ui::labelledRow(limits, "Label1(0)", "Min :", tMinFreq);
  ui::labelledRow(limits, "Label1(1)", "Max :", tMaxFreq);
  tFreq = new ui::EntryField(Frame3, "tFreq",
                             {.keys = common::decimalKey, .pointTyped = &FreqPointTyped});
  tFreq->setContents("1");
  oHzKhz = new ui::OptionGroup(Frame3, "oHzKhz");
  frequency->addWidget(tFreq, 0, 1);
  frequency->addWidget(oHzKhz->add(inHz, "Hz"), 0, 2);
  frequency->addWidget(oHzKhz->add(inKHz, "KHz"), 0, 3);
  oHzKhz->select(inKHz);
  return Frame3;
}

void fPWM::layOut() {
  auto* Frame1 = ui::group(this, "Frame1", "OSC (MHz)");
  tOSC = new ui::EntryField(Frame1, "tOSC",
                            {.keys = common::decimalKey, .pointTyped = &OscPointTyped});
  tOSC->setContents("4");
  ui::row(Frame1, {tOSC});

  auto* Frame2 = ui::group(this, "Frame2", "Duty cycle (%)");
  tDuty = new ui::EntryField(Frame2, "tDuty", {.validatesOnFocusLost = true});
  scrollduty = new ui::Slider(Frame2, "scrollduty", 0, 100);
  ui::nameAfter(scrollduty, "Duty cycle slider");
  auto* duty = ui::grid(Frame2);
  duty->addWidget(tDuty, 0, 0, Qt::AlignHCenter);
  duty->addWidget(scrollduty, 1, 0);

  auto* Frame3 = layOutFrequency();

  auto* Frame4 = ui::group(this, "Frame4", "Possible match");
  auto* matches = ui::grid(Frame4);
  tCalc = ui::headedColumn(matches, "tCalc", "Calc. freq.", " 00000000.0 KHz", lines);
  tPrescaler = ui::headedColumn(matches, "tPrescaler", "Prescaler", "1:16", lines);
  tResolution = ui::headedColumn(matches, "tResolution", "Resolution", "10 Bit", lines);
  trMaxPR2 = ui::headedColumn(matches, "trMaxPR2", "Max Duty val.", "1024", lines);
  trDutyStep = ui::headedColumn(matches, "trDutyStep", "Duty step (%)", "00.000 %", lines);

  ui::packTopLeft(matches);

  auto* Frame5 = ui::group(this, "Frame5", "Results");
  auto* results = ui::grid(Frame5);
  tPrescaler2 = ui::headedColumn(results, "tPrescaler2", "Prescaler", "1:16", lines);
  tPR2 = ui::headedColumn(results, "tPR2", "PR2", "  255", lines);
  tDecimal = ui::headedColumn(results, "tDecimal", "Duty register", "1024", lines);
  tCalcDuty = ui::headedColumn(results, "tCalcDuty", "Calc. duty", "100.00 %", lines);
  ui::packTopLeft(results);
  for (ui::ResultColumn* answer : {tPrescaler2, tPR2, tDecimal, tCalcDuty})
    ui::weigh(*answer, ui::Weight::Answer);

  auto* window = ui::grid(this);
  window->addWidget(Frame1, 0, 0);
  window->addWidget(Frame2, 0, 1);
  window->addWidget(Frame3, 1, 0, 1, 2);
  window->addWidget(Frame4, 2, 0, 1, 2);
  window->addWidget(Frame5, 3, 0, 1, 2);
  // Leaving the oscillator leads to the frequency, so the Tab key comes to the duty cycle after it.
  setTabOrder(oHzKhz->button(inKHz), tDuty);
  setTabOrder(tDuty, scrollduty);
  ui::dimWhileEdited(tOSC, tMinFreq, ui::resultsOf(*this));
  ui::dimWhileEdited(
      tFreq, tCalc,
      {tPrescaler, tResolution, trMaxPR2, trDutyStep, tPrescaler2, tPR2, tDecimal, tCalcDuty});
  ui::dimWhileEdited(tDuty, tDecimal, {tCalcDuty});
  ui::fixToContent(this);
}

void fPWM::connectEvents() {
  connect(tOSC, &ui::EntryField::validate, this, &fPWM::tOSC_Validate);
  connect(tFreq, &ui::EntryField::validate, this, &fPWM::tFreq_Validate);
  connect(oHzKhz, &ui::OptionGroup::chosen, this, &fPWM::CalcPWM);
  connect(tDuty, &ui::EntryField::validate, this, &fPWM::tDuty_Validate);
  connect(tDuty, &ui::EntryField::entered, this, &fPWM::CalcDuty);
  connect(scrollduty, &ui::Slider::moved, this, &fPWM::scrollduty_Change);
}

void fPWM::Form_Load() {
  enableDuty(false);
  tDuty->setContents("50");
  scrollduty->setPosition(common::toWhole<std::int32_t>(tDuty->number()));
  CalcPWM();
  tFreq->setFocus();  // where leaving the oscillator leads to as well
}

calc::PwmInputs fPWM::inputs() const {
  return {.foscMHz = tOSC->number(),
          .frequency = tFreq->number(),
          .kHz = oHzKhz->selected() == inKHz,
          .dutyPercent = tDuty->number()};
}

void fPWM::CalcPWM() {
  rewriteResults();
  if (shown_.matches.MatchCount == 0) tFreq->setFocus();
}

void fPWM::rewriteResults() {
  FreqPointTyped = false;
  OscPointTyped = false;
  shown_ = calc::showPwm(inputs());
  tMinFreq->setContents(shown_.minFreq);
  tMaxFreq->setContents(shown_.maxFreq);
  tCalc->setContents(shown_.calcFreq);
  tPrescaler->setContents(shown_.prescaler);
  tResolution->setContents(shown_.resolution);
  trMaxPR2->setContents(shown_.maxDutyVal);
  trDutyStep->setContents(shown_.dutyStep);
  tPrescaler2->setContents(shown_.prescaler);
  tPR2->setContents(shown_.PR2);
  showDuty();
  enableDuty(shown_.matches.MatchCount > 0);
  const bool none = shown_.matches.MatchCount == 0;
  ui::showExceeded(*tMinFreq, none && !shown_.matches.aboveRange);
  ui::showExceeded(*tMaxFreq, none && shown_.matches.aboveRange);
}

void fPWM::CalcDuty() {
  shown_ = calc::next(std::move(shown_), inputs());
  showDuty();
}

void fPWM::showDuty() {
  tDecimal->setContents(shown_.dutyRegister);
  tCalcDuty->setContents(shown_.calcDuty);
}

// The focus is taken from a control before it is disabled: the toolkit would pass it on to the
// next one.
void fPWM::enableDuty(bool on) {
  if (!on && (tDuty->hasFocus() || scrollduty->hasFocus())) tFreq->setFocus();
  tDuty->setEnabled(on);
  scrollduty->setEnabled(on);
}

void fPWM::tOSC_Validate() {
  validateOscillator(*this, *tOSC, oscillator_, [this] {
    CalcPWM();
    tFreq->setFocus();
  });
}

// Where the user goes from the frequency is where the focus stays, also when nothing matches.
void fPWM::tFreq_Validate() {
  if (tFreq->number() <= 0) tFreq->setContents("1");
  rewriteResults();
}

void fPWM::tDuty_Validate() {
  const auto percent = common::toWhole<std::int32_t>(tDuty->number());
  if (percent > scrollduty->maximum()) tDuty->setContents(common::wholeText(scrollduty->maximum()));
  if (percent < 0)  // only by pasting; the field then shows where the slider can go
    scrollduty->refreshPosition(0);
  else
    scrollduty->setPosition(percent);
}

void fPWM::scrollduty_Change() {
  tDuty->setContents(common::wholeText(scrollduty->value()));
  CalcDuty();
}

}  // namespace tarnwick::forms
