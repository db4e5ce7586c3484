#include "forms/fEUSART.h"

#include "calc/serial_text.h"
#include "forms/descriptions.h"
#include "ui/desktop.h"
#include "ui/keys.h"
#include "ui/layout.h"
#include "ui/result_look.h"

#include <QHBoxLayout>

#include <cstddef>
#include <utility>

namespace tarnwick::forms {
namespace {

constexpr std::array<std::string_view, 2> brg16Locations{"BAUDCON.3", "BAUDCTL.3"};
constexpr int unlimited = ui::EntryFieldTraits{}.maxLength;

}  // namespace

fEUSART::fEUSART(common::OscillatorSetting& oscillator)
    : Window("fEUSART", "EUSART Calc"),
      inputs_(this, oscillator, unlimited, [this] { CalcEUSART(); }) {
  layOut();
  describe(*this);
  connectEvents();
  Form_Load();
}

void fEUSART::layOut() {
  auto* fLocation = ui::group(this, "fLocation", "BRG16 location");
  dropBRG16 = new ui::EditableList(fLocation, "dropBRG16", brg16Locations, "BAUDCON.3000");
  ui::nameAfter(dropBRG16, "BRG16 location");
  ui::row(fLocation, {dropBRG16});

  const RateTable table =
      rateTable(this, "fResults", "Results BRG16=0", false, {"tSPBRG0", "tCalcBaud0", "tERR0"},
                {"tSPBRG1", "tCalcBaud1", "tERR1"});
  auto* fBestMatch = matchGroup(
      table.group, "fBestMatch", "Best match", ui::Weight::Answer,
      {{&best_.err, "trERR", "Error % :"}, {&best_.calcBaud, "trCalcBaud", "Calc baud :"}},
      {{&best_.spbrg, "trSPBRG", "SPBRG :"}, {&trSPBRGH, "trSPBRGH", "BRGH :"}});
  table.grid->addWidget(fBestMatch, 3, 0, 1, -1);
  ui::packTopLeft(table.grid);

  const RateTable table16 = rateTable(this, "fResults16", "Results BRG16=1", true,
                                      {"tSPBRG16_0", "tCalcBaud16_0", "tERR16_0"},
                                      {"tSPBRG16_1", "tCalcBaud16_1", "tERR16_1"});
  auto* fBestMatch16 = matchGroup(
      table16.group, "fBestMatch16", "Best match", ui::Weight::Answer,
      {{&best16_.err, "trERR16", "Error % :"}, {&best16_.calcBaud, "trCalcBaud16", "Calc baud :"}},
      {{&best16_.spbrg, "trSPBRG16(0)", "SPBRG :"},
       {&best16_.spbrgh, "trSPBRG16(1)", "SPBRGH :"},
       {&trSPBRGH16, "trSPBRGH16", "BRGH :"}});
  table16.grid->addWidget(fBestMatch16, 3, 0, 1, -1);
  ui::packTopLeft(table16.grid);

  rows_ = {table.brgh0, table.brgh1, table16.brgh0, table16.brgh1};

  auto* fFinal = matchGroup(
      this, "fFinal", "Final best match", ui::Weight::FinalAnswer,
      {{&final_.err, "tfERR", "Error % :"}, {&final_.calcBaud, "tfCalcBaud", "Calc baud :"}},
      {{&final_.spbrg, "tfSPBRG", "SPBRG :"},
       {&final_.spbrgh, "TSPBRGH", "SPBRGH :"},
       {&tfBRGH, "tfBRGH", "BRGH :"},
       {&tfBRG16, "tfBRG16", "BRG16 :"}});
  cCopyRegister = ui::button(this, "cCopyRegister", "Copy register settings to clipboard");
  CopyClip = ui::button(this, "CopyClip", "Copy PBP DEFINEs to clipboard");
  ui::clickBy(*cCopyRegister, Qt::ALT | Qt::Key_R);
  ui::clickBy(*CopyClip, Qt::ALT | Qt::Key_C);

  auto* inputs = new QHBoxLayout;
  for (QGroupBox* group :
       {inputs_.oscGroup, inputs_.rate.baudGroup, inputs_.rate.commonGroup, fLocation})
    inputs->addWidget(group);

  auto* window = ui::grid(this);
  window->addLayout(inputs, 0, 0, 1, 2);
  window->addWidget(table.group, 1, 0);
  window->addWidget(table16.group, 1, 1);
  window->addWidget(fFinal, 2, 0, 3, 1);
  window->addWidget(cCopyRegister, 2, 1);
  window->addWidget(CopyClip, 3, 1);
  window->setRowStretch(4, 1);
  for (ui::EntryField* field : {inputs_.fOSC, inputs_.BaudRate})
    ui::dimWhileEdited(field, rows_[0].spbrg, ui::resultsOf(*this));
  ui::fixToContent(this);
}

void fEUSART::connectEvents() {
  connect(inputs_.BaudRate, &ui::EntryField::focusLost, this,
          [this] { inputs_.BaudPointTyped = false; });
  connect(dropBRG16, &ui::EditableList::chosen, this, &fEUSART::dropBRG16_Click);
  connect(cCopyRegister, &QPushButton::clicked, this, &fEUSART::cCopyRegister_Click);
  connect(CopyClip, &QPushButton::clicked, this, &fEUSART::CopyClip_Click);
}

void fEUSART::Form_Load() {
  show({});
  inputs_.load();
}

void fEUSART::CalcEUSART() {
  inputs_.clearPointFlags();
  show(calc::next(shown_, {.baud = inputs_.inputs(), .location = dropBRG16->contents()}));
}

void fEUSART::show(calc::EusartShown shown) {
  shown_ = std::move(shown);
  for (std::size_t i = 0; i < rows_.size(); ++i) rows_[i].show(shown_.rows[i]);
  best_.show(shown_.best.texts);
  trSPBRGH->setContents(shown_.best.brghText);
  best16_.show(shown_.best16.texts);
  trSPBRGH16->setContents(shown_.best16.brghText);
  final_.show(shown_.finalMatch.texts);
  tfBRGH->setContents(shown_.finalMatch.brghText);
  tfBRG16->setContents(shown_.brg16Text);
  ui::showOutOfDate(ui::resultsOf(*this), this, shown_.matchesAreOld);  // no row is shown then
  dropBRG16->setEnabled(shown_.canLocate);
  enableCopying();
}

void fEUSART::enableCopying() {
  CopyClip->setEnabled(shown_.canCopy);
  cCopyRegister->setEnabled(shown_.canCopy);
}

void fEUSART::dropBRG16_Click() {
  shown_ = calc::locationChosen(std::move(shown_), dropBRG16->contents());
  enableCopying();
}

void fEUSART::cCopyRegister_Click() {
  copy(calc::EusartRegisterText(inputs_.goal(), shown_, dropBRG16->contents()));
}

void fEUSART::CopyClip_Click() {
  copy(calc::EusartDefineText(inputs_.goal(), shown_, dropBRG16->contents()));
}

void fEUSART::copy(std::string text) {
  ClipText = std::move(text);
  ui::copyToClipboard(ClipText);
}

}  // namespace tarnwick::forms
