#include "forms/fUSART.h"

#include "ui/desktop.h"
#include "ui/layout.h"

namespace tarnwick::forms {

fUSART::fUSART(common::OscillatorSetting& oscillator)
    : Window("fUSART", "USART Calc"), inputs_(this, oscillator, 8, [this] { CalcUSART(); }) {
  layOut();
  connectEvents();
  Form_Load();
}

void fUSART::layOut() {
  const RateTable table =
      rateTable(this, "fResults", "Results", false, {"tSPBRG0", "tCalcBaud0", "tERR0"},
                {"tSPBRG1", "tCalcBaud1", "tERR1"});
  row0_ = table.brgh0;
  row1_ = table.brgh1;

  ui::packTopLeft(table.grid);

  auto* fBestMatch = matchGroup(
      this, "fBestMatch", "Best match",
      {{&best_.err, "trERR", "Error % :"}, {&best_.calcBaud, "trCalcBaud", "Calc Baud :"}},
      {{&best_.spbrg, "trSPBRG", "SPBRG :"}, {&trSPBRGH, "trSPBRGH", "BRGH :"}});
  cCopyRegister = ui::button(this, "cCopyRegister", "Copy register settings to clipboard");
  CopyClip = ui::button(this, "CopyClip", "Copy PBP DEFINEs to clipboard");

  auto* window = ui::grid(this);
  window->addWidget(inputs_.oscGroup, 0, 0);
  window->addWidget(inputs_.rate.baudGroup, 0, 1);
  window->addWidget(inputs_.rate.commonGroup, 0, 2);
  window->addWidget(table.group, 1, 0, 1, 3);
  window->addWidget(fBestMatch, 2, 0, 3, 2);
  window->addWidget(cCopyRegister, 2, 2);
  window->addWidget(CopyClip, 3, 2);
  window->setRowStretch(4, 1);
  ui::fixToContent(this);
}

void fUSART::connectEvents() {
  connect(cCopyRegister, &QPushButton::clicked, this, &fUSART::cCopyRegister_Click);
  connect(CopyClip, &QPushButton::clicked, this, &fUSART::CopyClip_Click);
}

void fUSART::Form_Load() {
  CopyClip->setEnabled(false);
  cCopyRegister->setEnabled(false);
  inputs_.load();
}

void fUSART::CalcUSART() {
  inputs_.clearPointFlags();
  const bool kBaud = inputs_.rate.cKBaud->isChecked();
  rows_ = calc::usartRows(inputs_.fOSC->number(), inputs_.rate.baud());
  row0_.show(rows_[0], kBaud);
  row1_.show(rows_[1], kBaud);

  const auto best = calc::usartBest(rows_);
  BestBRGH = best.value_or(false);
  best_.show(rows_[BestBRGH ? 1 : 0], kBaud);
  trSPBRGH->setContents(!best ? "" : BestBRGH ? "1" : "0");
  CopyClip->setEnabled(best.has_value());
  cCopyRegister->setEnabled(best.has_value());
}

calc::UsartSetup fUSART::setup() const {
  const calc::BaudRow best = rows_[BestBRGH ? 1 : 0].value_or(calc::BaudRow{});
  return {.goal = inputs_.goal(), .BestBRGH = BestBRGH, .Spbrg = best.Spbrg, .Err = best.Err};
}

void fUSART::cCopyRegister_Click() {
  ClipText = calc::UsartRegisterText(setup());
  ui::copyToClipboard(ClipText);
}

void fUSART::CopyClip_Click() {
  ClipText = calc::UsartDefineText(setup());
  ui::copyToClipboard(ClipText);
}

}  // namespace tarnwick::forms
