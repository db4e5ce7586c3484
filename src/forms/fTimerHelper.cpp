#include "forms/fTimerHelper.h"

#include "common/number_text.h"
#include "common/rounding.h"
#include "forms/descriptions.h"
#include "forms/oscillator_field.h"
#include "ui/layout.h"
#include "ui/result_look.h"
#include "ui/text.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

#include <algorithm>
#include <string>

namespace tarnwick::forms {
namespace {

constexpr int lines = static_cast<int>(calc::timerPrescalers.size());
constexpr std::string_view widestPreload = "65535";
constexpr std::string_view widestCalc = "00000.000 uSec";

// Selects a unit without the click step, which would recalculate.
void selectQuietly(ui::OptionGroup& units, calc::DelayUnit unit) {
  const QSignalBlocker quiet(units);
  units.select(static_cast<int>(unit));
}

// Makes the columns of one width; its digits end their names.
void addColumns(QGroupBox* frame, const std::string& width, WidthResults& results) {
  auto* grid = ui::grid(frame);
  results.tPreload = ui::headedColumn(grid, "tPreload" + width, "Preload", widestPreload, lines);
  results.tPrescaler = ui::headedColumn(grid, "tPrescaler" + width, "Prescaler", "1:256", lines);
  results.tCalc = ui::headedColumn(grid, "tCalc" + width, "Calc", widestCalc, lines);
  results.tERR = ui::headedColumn(grid, "tERR" + width, "Error %", "00.000 %", lines);
  ui::packTopLeft(grid);
}

// Makes the fields of the best match of one width.
void addBest(QGroupBox* frame, const std::string& width, WidthResults& results) {
  results.tfPreload = new ui::ResultField(frame, "tfPreload" + width, "000000", ui::Weight::Answer);
  results.tfPrescaler =
      new ui::ResultField(frame, "tfPrescaler" + width, "000000", ui::Weight::Answer);
  results.tfERR = new ui::ResultField(frame, "tfERR" + width, "000000", ui::Weight::Answer);
}

// Lays out the best match of one width: a caption and the three fields below it.
void layOutBest(QHBoxLayout* bests, std::string_view width, const WidthResults& results) {
  auto* best = ui::grid(nullptr);
  best->setContentsMargins(0, 0, 0, 0);
  bests->addLayout(best);
  const std::string suffix = "(" + std::string(width) + ")";
  best->addWidget(ui::label(bests->parentWidget(), "Best" + suffix, width), 0, 1);
  ui::labelledRow(best, "Preload" + suffix, "Preload :", results.tfPreload);
  ui::labelledRow(best, "Prescaler" + suffix, "Prescaler :", results.tfPrescaler);
  ui::labelledRow(best, "Error" + suffix, "Error % :", results.tfERR);
  for (QWidget* field : {results.tfPreload, results.tfPrescaler, results.tfERR})
    ui::nameAfter(field, std::string(width) + ", " + ui::fromQt(field->accessibleName()));
  ui::packTopLeft(best);
}

}  // namespace

fTimerHelper::fTimerHelper(common::OscillatorSetting& oscillator)
    : Window("fTimerHelper", "Timer helper"), oscillator_(oscillator) {
  layOut();
  describe(*this);
  connectEvents();
  Form_Load();
}

void fTimerHelper::layOut() {
  auto* frameOsc = ui::group(this, "frameOsc", "OSC(MHz)");
  tOSC = new ui::EntryField(
      frameOsc, "tOSC",
      {.keys = common::decimalKey, .pointTyped = &OscPointTyped, .clearsPointOnEntering = true});
  ui::row(frameOsc, {tOSC});

  auto* FrameDelay = ui::group(this, "FrameDelay", "Interrupt/Frequency");
  tDelay = new ui::EntryField(FrameDelay, "tDelay",
                              {.keys = common::decimalKey,
                               .pointTyped = &DelayPointTyped,
                               .clearsPointOnEntering = true,
                               .widest = "000000.00000"});
  omSecuSec = new ui::OptionGroup(FrameDelay, "omSecuSec");
  ui::row(FrameDelay, {tDelay, omSecuSec->add(0, "uSec"), omSecuSec->add(1, "mSec"),
                       omSecuSec->add(2, "Hz"), omSecuSec->add(3, "KHz")});
  omSecuSec->select(0);

  auto* Frame2 = ui::group(this, "Frame2", "Reload (instr. cycle)");
  tReload = new ui::EntryField(Frame2, "tReload", {.widest = "0000"});
  HScroll1 = new ui::Slider(Frame2, "HScroll1", 1, 15);
  ui::nameAfter(HScroll1, "Reload slider");
  ui::row(Frame2, {tReload, HScroll1});

  auto* Frame3 = ui::group(this, "Frame3", "8 Bit timer results");
  addColumns(Frame3, "8", results8_);
  auto* Frame1 = ui::group(this, "Frame1", "16 Bit timer results");
  addColumns(Frame1, "16", results16_);

  auto* Frame4 = ui::group(this, "Frame4", "Best match");
  addBest(Frame4, "8", results8_);
  addBest(Frame4, "16", results16_);
  ui::row(Frame4, {});
  auto* bests = static_cast<QHBoxLayout*>(Frame4->layout());
  bests->setSpacing(2 * bests->spacing());
  layOutBest(bests, "8 Bit", results8_);
  layOutBest(bests, "16 Bit", results16_);

  auto* window = ui::grid(this);
  window->addWidget(frameOsc, 0, 0);
  window->addWidget(FrameDelay, 0, 1);
  window->addWidget(Frame2, 0, 2);
  auto* widths = new QHBoxLayout;
  window->addLayout(widths, 1, 0, 1, 3);
  widths->addWidget(Frame3);
  widths->addWidget(Frame1);
  window->addWidget(Frame4, 2, 0, 1, 3);
  for (ui::EntryField* field : {tOSC, tDelay, tReload})
    ui::dimWhileEdited(field, results8_.tPreload, ui::resultsOf(*this));
  ui::fixToContent(this);
}

void fTimerHelper::connectEvents() {
  connect(tOSC, &ui::EntryField::validate, this, &fTimerHelper::tOSC_Validate);
  connect(tOSC, &ui::EntryField::focusGained, this, &fTimerHelper::tOSC_GotFocus);
  connect(tDelay, &ui::EntryField::validate, this, &fTimerHelper::tDelay_Validate);
  connect(omSecuSec, &ui::OptionGroup::chosen, this, &fTimerHelper::DoCalc);
  connect(tReload, &ui::EntryField::validate, this, &fTimerHelper::tReload_Validate);
  connect(HScroll1, &ui::Slider::moved, this, &fTimerHelper::HScroll1_Change);
}

void fTimerHelper::Form_Load() {
  tOSC->setContents("4");
  tReload->setContents("1");
  tDelay->setContents("10");
  HScroll1->setRangeAndPosition(1, 15, 7);
  DoCalc();
}

void fTimerHelper::DoCalc() {
  shown_ = calc::showTimerHelper(
      {.foscMHz = tOSC->number(),
       .delay = {tDelay->number(), static_cast<calc::DelayUnit>(omSecuSec->selected())},
       .reloadCycles = tReload->number()});
  if (shown_.delayText) tDelay->setContents(*shown_.delayText);
  selectQuietly(*omSecuSec, shown_.unit);
  Calculate(calc::counts8);
  Calculate(calc::counts16);
}

void fTimerHelper::Calculate(int Max) {
  const bool is8Bit = Max == calc::counts8;
  const calc::TimerWidthShown& shown = is8Bit ? shown_.width8 : shown_.width16;
  const WidthResults& results = is8Bit ? results8_ : results16_;
  MatchCount = shown.MatchCount;
  results.tPreload->setContents(shown.preload, shown.bestLine);
  results.tPrescaler->setContents(shown.prescaler, shown.bestLine);
  results.tCalc->setContents(shown.calc, shown.bestLine);
  results.tERR->setContents(shown.error, shown.bestLine);
  ui::showExceeded(*results.tPreload, shown.exceeded == calc::TimerLimit::Counts);
  ui::showExceeded(*results.tERR, shown.exceeded == calc::TimerLimit::Tolerance);
  ui::showExceeded(*tReload, shown.exceeded == calc::TimerLimit::ReloadTime);
  results.tfPreload->setContents(shown.bestPreload);
  results.tfPrescaler->setContents(shown.bestPrescaler);
  results.tfERR->setContents(shown.bestError);
}

void fTimerHelper::tOSC_Validate() {
  validateOscillator(*this, *tOSC, oscillator_, [this] { DoCalc(); });
}

void fTimerHelper::tOSC_GotFocus() {
  if (MatchCount != 0) DoCalc();
}

void fTimerHelper::tDelay_Validate() {
  if (tDelay->number() <= 0) tDelay->setContents("1");
  DoCalc();
}

void fTimerHelper::tReload_Validate() {
  const std::uint8_t typed = common::toWhole<std::uint8_t>(tReload->number());
  const int cycles = std::clamp<int>(typed, 1, 15);
  tReload->setContents(common::wholeText(cycles));
  HScroll1->setPosition(cycles);
  if (MatchCount > 0)
    DoCalc();
  else
    tDelay->setFocus();
}

void fTimerHelper::HScroll1_Change() {
  tReload->setContents(common::wholeText(HScroll1->value()));
  DoCalc();
}

}  // namespace tarnwick::forms
