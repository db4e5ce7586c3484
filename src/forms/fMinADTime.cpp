#include "forms/fMinADTime.h"

#include "forms/descriptions.h"
#include "forms/oscillator_field.h"
#include "ui/desktop.h"
#include "ui/keys.h"
#include "ui/layout.h"
#include "ui/result_look.h"

#include <string_view>

namespace tarnwick::forms {
namespace {

using calc::AdcResolution;

constexpr int bits8 = static_cast<int>(AdcResolution::Bits8);  // oADCBits indices
constexpr int bits10 = static_cast<int>(AdcResolution::Bits10);
constexpr std::string_view widestResult = "Fosc/64 (ADCS=110)";

}  // namespace

fMinADTime::fMinADTime(common::OscillatorSetting& oscillator)
    : Window("fMinADTime", "A/D Calc"), oscillator_(oscillator) {
  layOut();
  describe(*this);
  connectEvents();
  Form_Load();
}

void fMinADTime::layOut() {
  auto* fOSC = ui::group(this, "fOSC", "OSC(MHz)");
  tOSC = new ui::EntryField(fOSC, "tOSC",
                            {.keys = common::decimalKey,
                             .pointTyped = &OscPointTyped,
                             .clearsPointOnEntering = true,
                             .validatesOnFocusLost = true});
  ui::row(fOSC, {tOSC});

  auto* fImpedance = ui::group(this, "fImpedance", "Source impedance");
  tImpedance = new ui::EntryField(fImpedance, "tImpedance",
                                  {.keys = common::decimalKey,
                                   .pointTyped = &ImpedancePointTyped,
                                   .clearsPointOnEntering = true,
                                   .validatesOnFocusLost = true});
  cKohm = ui::checkBox(fImpedance, "cKohm", "K Ohm");
  ui::row(fImpedance, {tImpedance, cKohm});

  auto* fADCBits = ui::group(this, "fADCBits", "ADC resolution");
  oADCBits = new ui::OptionGroup(fADCBits, "oADCBits");
  ui::row(fADCBits, {oADCBits->add(bits10, "10 Bits"), oADCBits->add(bits8, "8 Bits")});

  auto* fResults = ui::group(this, "fResults", "Results");
  auto* results = ui::grid(fResults);
  tADClock = new ui::ResultField(fResults, "tADClock", widestResult, ui::Weight::Answer);
  tMinTad = new ui::ResultField(fResults, "tMinTad", widestResult, ui::Weight::Answer);
  tMinTaq = new ui::ResultField(fResults, "tMinTaq", widestResult, ui::Weight::Answer);
  ui::labelledRow(results, "tlabel(0)", "A/D conversion clock (ADCS)  :", tADClock);
  ui::labelledRow(results, "tlabel(1)", "A/D acquistion time (ACQT) :", tMinTad);
  ui::labelledRow(results, "tlabel(2)", "Min acquisition time :", tMinTaq);

  cCopyClip = ui::button(this, "cCopyClip", "Copy PBP DEFINEs to clipboard");
  ui::clickBy(*cCopyClip, Qt::ALT | Qt::Key_C);

  auto* window = ui::grid(this);
  window->addWidget(fOSC, 0, 0);
  window->addWidget(fImpedance, 0, 1);
  window->addWidget(fADCBits, 0, 2);
  window->addWidget(fResults, 1, 0, 1, 3);
  window->addWidget(cCopyClip, 2, 0, 1, 3, Qt::AlignRight);
  ui::dimWhileEdited(tOSC, tADClock, {tMinTad});
  ui::dimWhileEdited(tImpedance, tMinTaq, {tMinTad});
  ui::fixToContent(this);
}

void fMinADTime::connectEvents() {
  connect(tOSC, &ui::EntryField::validate, this, &fMinADTime::tOSC_Validate);
  connect(tOSC, &ui::EntryField::entered, this, [this] { tImpedance->setFocus(); });
  connect(tImpedance, &ui::EntryField::validate, this, &fMinADTime::tImpedance_Validate);
  connect(tImpedance, &ui::EntryField::entered, this, [this] { cKohm->setFocus(); });
  connect(cKohm, &QCheckBox::toggled, this, &fMinADTime::cKohm_Click);
  connect(cCopyClip, &QPushButton::clicked, this, &fMinADTime::cCopyClip_Click);
}

void fMinADTime::Form_Load() {
  tOSC->setContents("20");
  tImpedance->setContents("10");
  cKohm->setChecked(true);
  oADCBits->select(bits10);
  CalcADC();
}

void fMinADTime::CalcADC() {
  shown_ = calc::showAdc(
      {.foscMHz = tOSC->number(), .impedance = tImpedance->number(), .kOhm = cKohm->isChecked()});
  tADClock->setContents(shown_.clock);
  tMinTad->setContents(shown_.acquisitionTad);
  tMinTaq->setContents(shown_.acquisitionTime);
}

void fMinADTime::tOSC_Validate() {
  validateOscillator(*this, *tOSC, oscillator_, [this] { CalcADC(); });
}

void fMinADTime::tImpedance_Validate() {
  if (tImpedance->number() == 0) tImpedance->setContents("1");
  CalcADC();
}

// The clock choice divides by the oscillator: one that reads as 0 is corrected first.
void fMinADTime::cKohm_Click() {
  if (tOSC->number() == 0)
    tOSC_Validate();
  else
    CalcADC();
}

void fMinADTime::cCopyClip_Click() {
  const auto resolution = static_cast<AdcResolution>(oADCBits->selected());
  ui::copyToClipboard(calc::AdcDefineText(shown_.Taq, shown_.Clock, resolution));
}

}  // namespace tarnwick::forms
