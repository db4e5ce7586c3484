#include "forms/fPWM.h"

#include "common/number_text.h"
#include "common/rounding.h"
#include "forms/oscillator_field.h"
#include "ui/layout.h"

namespace tarnwick::forms {
namespace {

constexpr int inHz = 0;  // oHzKhz indices
constexpr int inKHz = 1;
constexpr int lines = static_cast<int>(calc::pwmPrescalers.size());

}  // namespace

fPWM::fPWM(common::OscillatorSetting& oscillator)
    : Window("fPWM", "PWM Calc"), oscillator_(oscillator) {
  layOut();
  connectEvents();
  Form_Load();
}

void fPWM::layOut() {
  auto* Frame1 = ui::group(this, "Frame1", "OSC (MHz)");
  tOSC = new ui::EntryField(Frame1, "tOSC",
                            {.keys = common::decimalKey, .pointTyped = &OscPointTyped});
  tOSC->setContents("4");
  ui::nameAfter(tOSC, "OSC (MHz)");
  ui::row(Frame1, {tOSC});

  auto* Frame2 = ui::group(this, "Frame2", "Duty cycle (%)");
  tDuty = new ui::EntryField(Frame2, "tDuty", {.validatesOnFocusLost = true});
  scrollduty = new ui::Slider(Frame2, "scrollduty", 0, 100);
  ui::nameAfter(tDuty, "Duty cycle (%)");
  ui::nameAfter(scrollduty, "Duty cycle slider");
  auto* duty = ui::grid(Frame2);
  duty->addWidget(tDuty, 0, 0, Qt::AlignHCenter);
  duty->addWidget(scrollduty, 1, 0);

  auto* Frame3 = ui::group(this, "Frame3", "Frequency");
  auto* frequency = ui::grid(Frame3);
  auto* limits = ui::grid(nullptr);
  limits->setContentsMargins(0, 0, 0, 0);
  frequency->addLayout(limits, 0, 0);
  tMinFreq = new ui::ResultField(Frame3, "tMinFreq", "0000000.000 KHz");
  tMaxFreq = new ui::ResultField(Frame3, "tMaxFreq", "0000000.000 MHz");
  ui::labelledRow(limits, "Label1(0)", "Min :", tMinFreq);
  ui::labelledRow(limits, "Label1(1)", "Max :", tMaxFreq);
  tFreq = new ui::EntryField(Frame3, "tFreq",
                             {.keys = common::decimalKey, .pointTyped = &FreqPointTyped});
  tFreq->setContents("1");
  ui::nameAfter(tFreq, "Frequency");
  oHzKhz = new ui::OptionGroup(Frame3, "oHzKhz", {{inHz, "Hz"}, {inKHz, "KHz"}});
  oHzKhz->select(inKHz);
  frequency->addWidget(tFreq, 0, 1);
  frequency->addWidget(oHzKhz->button(inHz), 0, 2);
  frequency->addWidget(oHzKhz->button(inKHz), 0, 3);

  auto* Frame4 = ui::group(this, "Frame4", "Possible match");
  auto* matches = ui::grid(Frame4);
  tCalc = ui::headedColumn(matches, "tCalc", "Calc. freq.", " 00000000.000 KHz", lines);
  tPrescaler = ui::headedColumn(matches, "tPrescaler", "Prescaler", "1:16", lines);
  tResolution = ui::headedColumn(matches, "tResolution", "Resolution", "10 Bit", lines);
  trMaxPR2 = ui::headedColumn(matches, "trMaxPR2", "Max Duty val.", "1024", lines);
  trDutyStep = ui::headedColumn(matches, "trDutyStep", "Duty step (%)", "00.000 %", lines);

  auto* Frame5 = ui::group(this, "Frame5", "Results");
  auto* results = ui::grid(Frame5);
  tPrescaler2 = ui::headedColumn(results, "tPrescaler2", "Prescaler", "1:16", lines);
  tPR2 = ui::headedColumn(results, "tPR2", "PR2", "  255", lines);
  tDecimal = ui::headedColumn(results, "tDecimal", "Duty register", "1024", lines);
  tCalcDuty = ui::headedColumn(results, "tCalcDuty", "Calc. duty", "100.00 %", lines);

  auto* window = ui::grid(this);
  window->addWidget(Frame1, 0, 0);
  window->addWidget(Frame2, 0, 1);
  window->addWidget(Frame3, 1, 0, 1, 2);
  window->addWidget(Frame4, 2, 0, 1, 2);
  window->addWidget(Frame5, 3, 0, 1, 2);
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

void fPWM::CalcPWM() {
  rewriteResults();
  if (matches_.MatchCount == 0) tFreq->setFocus();
}

void fPWM::rewriteResults() {
  FreqPointTyped = false;
  OscPointTyped = false;
  const double Fosc = tOSC->number() * 1000000;
  const bool kHz = oHzKhz->selected() == inKHz;
  const double F = kHz ? tFreq->number() * 1000 : tFreq->number();

  const calc::PwmLimitTexts limits = calc::pwmLimitTexts(calc::PwmRange(Fosc));
  tMinFreq->setContents(limits.min);
  tMaxFreq->setContents(limits.max);

  matches_ = calc::PwmSearch(Fosc, F);
  const calc::PwmMatchTexts texts = calc::pwmMatchTexts(matches_, kHz);
  tCalc->setContents(texts.calcFreq);
  tPrescaler->setContents(texts.prescaler);
  tResolution->setContents(texts.resolution);
  trMaxPR2->setContents(texts.maxDutyVal);
  trDutyStep->setContents(texts.dutyStep);
  tPrescaler2->setContents(texts.prescaler);
  tPR2->setContents(texts.PR2);

  enableDuty(matches_.MatchCount > 0);
  CalcDuty();
}

void fPWM::CalcDuty() {
  const auto texts = calc::pwmDutyTexts(matches_, tDuty->number(), tOSC->number() * 1000000);
  if (!texts) return;
  tDecimal->setContents(texts->dutyRegister);
  tCalcDuty->setContents(texts->calcDuty);
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
  if (percent > 100) tDuty->setContents("100");
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
