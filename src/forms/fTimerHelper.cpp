#include "forms/fTimerHelper.h"

#include "common/number_text.h"
#include "common/rounding.h"
#include "forms/oscillator_field.h"
#include "ui/layout.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

#include <algorithm>

namespace tarnwick::forms {
namespace {

constexpr int counts8 = 256;
constexpr int counts16 = 65536;
constexpr int lines = static_cast<int>(calc::timerPrescalers.size());
constexpr std::string_view widestCalc = "0000000000.000 uSec";

// Selects a unit without the click step, which would recalculate.
void selectQuietly(ui::OptionGroup& units, calc::DelayUnit unit) {
  const QSignalBlocker quiet(units);
  units.select(static_cast<int>(unit));
}

// Lays out the best match of one width: a caption and the three fields below it.
void layOutBest(QHBoxLayout* bests, std::string_view width, ui::ResultField* preload,
                ui::ResultField* prescaler, ui::ResultField* error) {
  auto* best = ui::grid(nullptr);
  best->setContentsMargins(0, 0, 0, 0);
  bests->addLayout(best);
  const std::string suffix = "(" + std::string(width) + ")";
  best->addWidget(ui::label(bests->parentWidget(), "Best" + suffix, width), 0, 1);
  ui::labelledRow(best, "Preload" + suffix, "Preload :", preload);
  ui::labelledRow(best, "Prescaler" + suffix, "Prescaler :", prescaler);
  ui::labelledRow(best, "Error" + suffix, "Error % :", error);
}

}  // namespace

fTimerHelper::fTimerHelper(common::OscillatorSetting& oscillator)
    : Window("fTimerHelper", "Timer helper"), oscillator_(oscillator) {
  layOut();
  connectEvents();
  Form_Load();
}

void fTimerHelper::layOut() {
  auto* frameOsc = ui::group(this, "frameOsc", "OSC(MHz)");
  tOSC = new ui::EntryField(
      frameOsc, "tOSC",
      {.keys = common::decimalKey, .pointTyped = &OscPointTyped, .clearsPointOnEntering = true});
  ui::nameAfter(tOSC, "OSC(MHz)");
  ui::row(frameOsc, {tOSC});

  auto* FrameDelay = ui::group(this, "FrameDelay", "Interrupt/Frequency");
  tDelay = new ui::EntryField(FrameDelay, "tDelay",
                              {.keys = common::decimalKey,
                               .pointTyped = &DelayPointTyped,
                               .clearsPointOnEntering = true,
                               .widest = "0000.00000000000"});
  omSecuSec = new ui::OptionGroup(FrameDelay, "omSecuSec",
                                  {{0, "uSec"}, {1, "mSec"}, {2, "Hz"}, {3, "KHz"}});
  omSecuSec->select(0);
  ui::nameAfter(tDelay, "Interrupt/Frequency");
  ui::row(FrameDelay, {tDelay, omSecuSec->button(0), omSecuSec->button(1), omSecuSec->button(2),
                       omSecuSec->button(3)});

  auto* Frame2 = ui::group(this, "Frame2", "Reload (instr. cycle)");
  tReload = new ui::EntryField(Frame2, "tReload", {.widest = "000000"});
  HScroll1 = new ui::Slider(Frame2, "HScroll1", 1, 15);
  ui::nameAfter(tReload, "Reload (instr. cycle)");
  ui::nameAfter(HScroll1, "Reload slider");
  ui::row(Frame2, {tReload, HScroll1});

  auto* Frame3 = ui::group(this, "Frame3", "8 Bit timer results");
  auto* results8 = ui::grid(Frame3);
  tPreload8 = ui::headedColumn(results8, "tPreload8", "Preload", "255", lines);
  tPrescaler8 = ui::headedColumn(results8, "tPrescaler8", "Prescaler", "1:256", lines);
  tCalc8 = ui::headedColumn(results8, "tCalc8", "Calc", widestCalc, lines);
  tERR8 = ui::headedColumn(results8, "tERR8", "Error %", "00.000 %", lines);

  auto* Frame1 = ui::group(this, "Frame1", "16 Bit timer results");
  auto* results16 = ui::grid(Frame1);
  tPreload16 = ui::headedColumn(results16, "tPreload16", "Preload", "65535", lines);
  tPrescaler16 = ui::headedColumn(results16, "tPrescaler16", "Prescaler", "1:256", lines);
  tCalc16 = ui::headedColumn(results16, "tCalc16", "Calc", widestCalc, lines);
  tERR16 = ui::headedColumn(results16, "tERR16", "Error %", "00.000 %", lines);

  auto* Frame4 = ui::group(this, "Frame4", "Best match");
  tfPreload8 = new ui::ResultField(Frame4, "tfPreload8", "000000");
  tfPrescaler8 = new ui::ResultField(Frame4, "tfPrescaler8", "000000");
  tfERR8 = new ui::ResultField(Frame4, "tfERR8", "00.000");
  tfPreload16 = new ui::ResultField(Frame4, "tfPreload16", "000000");
  tfPrescaler16 = new ui::ResultField(Frame4, "tfPrescaler16", "000000");
  tfERR16 = new ui::ResultField(Frame4, "tfERR16", "00.000");
  ui::row(Frame4, {});
  auto* bests = static_cast<QHBoxLayout*>(Frame4->layout());
  bests->setSpacing(2 * bests->spacing());
  layOutBest(bests, "8 Bit", tfPreload8, tfPrescaler8, tfERR8);
  layOutBest(bests, "16 Bit", tfPreload16, tfPrescaler16, tfERR16);

  auto* window = ui::grid(this);
  window->addWidget(frameOsc, 0, 0);
  window->addWidget(FrameDelay, 0, 1);
  window->addWidget(Frame2, 0, 2);
  auto* widths = new QHBoxLayout;
  window->addLayout(widths, 1, 0, 1, 3);
  widths->addWidget(Frame3);
  widths->addWidget(Frame1);
  window->addWidget(Frame4, 2, 0, 1, 3);
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
  const auto unit = static_cast<calc::DelayUnit>(omSecuSec->selected());
  const calc::Delay delay = calc::shownDelay(tDelay->number(), unit);
  if (delay.text) tDelay->setContents(*delay.text);
  selectQuietly(*omSecuSec, delay.unit);

  goal_ = calc::timerGoal(tOSC->number(), tReload->number(), delay);
  Calculate(counts8);
  Calculate(counts16);
}

void fTimerHelper::Calculate(int Max) {
  const calc::TimerMatches matches = calc::searchTimer(Max, goal_);
  MatchCount = matches.MatchCount;
  const calc::TimerMatchTexts texts = calc::timerMatchTexts(matches, goal_.unit);
  const bool is8Bit = Max == counts8;
  (is8Bit ? tPreload8 : tPreload16)->setContents(texts.preload);
  (is8Bit ? tPrescaler8 : tPrescaler16)->setContents(texts.prescaler);
  (is8Bit ? tCalc8 : tCalc16)->setContents(texts.calc);
  (is8Bit ? tERR8 : tERR16)->setContents(texts.error);
  (is8Bit ? tfPreload8 : tfPreload16)->setContents(texts.bestPreload);
  (is8Bit ? tfPrescaler8 : tfPrescaler16)->setContents(texts.bestPrescaler);
  (is8Bit ? tfERR8 : tfERR16)->setContents(texts.bestError);
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
