#include "forms/fUSART.h"

#include "calc/serial_text.h"
#include "forms/descriptions.h"
#include "ui/desktop.h"
#include "ui/keys.h"
#include "ui/layout.h"
#include "ui/result_look.h"

#include <utility>

namespace tarnwick::forms {

fUSART::fUSART(common::OscillatorSetting& oscillator)
    : Window("fUSART", "USART Calc"), inputs_(this, oscillator, 8, [this] { CalcUSART(); }) {
  layOut();
  describe(*this);
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
      this, "fBestMatch", "Best match", ui::Weight::Answer,
      {{&best_.err, "trERR", "Error % :"}, {&best_.calcBaud, "trCalcBaud", "Calc Baud :"}},
      {{&best_.spbrg, "trSPBRG", "SPBRG :"}, {&trSPBRGH, "trSPBRGH", "BRGH :"}});
  cCopyRegister = ui::button(this, "cCopyRegister", "Copy register settings to clipboard");
  CopyClip = ui::button(this, "CopyClip", "Copy PBP DEFINEs to clipboard");
  ui::clickBy(*cCopyRegister, Qt::ALT | Qt::Key_R);
  ui::clickBy(*CopyClip, Qt::ALT | Qt::Key_C);

  auto* window = ui::grid(this);
  window->addWidget(inputs_.oscGroup, 0, 0);
  window->addWidget(inputs_.rate.baudGroup, 0, 1);
  window->addWidget(inputs_.rate.commonGroup, 0, 2);
  window->addWidget(table.group, 1, 0, 1, 3);
  window->addWidget(fBestMatch, 2, 0, 3, 2);
  window->addWidget(cCopyRegister, 2, 2);
  window->addWidget(CopyClip, 3, 2);
  window->setRowStretch(4, 1);
  for (ui::EntryField* field : {inputs_.fOSC, inputs_.BaudRate})
    ui::dimWhileEdited(field, row0_.spbrg, ui::resultsOf(*this));
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
  shown_ = calc::showUsart(inputs_.inputs());
  row0_.show(shown_.rows[0]);
  row1_.show(shown_.rows[1]);
  best_.show(shown_.best);
  trSPBRGH->setContents(shown_.bestBRGH);
  CopyClip->setEnabled(shown_.match.has_value());
  cCopyRegister->setEnabled(shown_.match.has_value());
}

void fUSART::cCopyRegister_Click() {
  if (shown_.match) copy(calc::UsartRegisterText(inputs_.goal(), *shown_.match));
}

void fUSART::CopyClip_Click() {
  if (shown_.match) copy(calc::UsartDefineText(inputs_.goal(), *shown_.match));
}

void fUSART::copy(std::string text) {
  ClipText = std::move(text);
  ui::copyToClipboard(ClipText);
}

}  // namespace tarnwick::forms
