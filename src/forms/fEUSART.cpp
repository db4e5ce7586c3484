#include "forms/fEUSART.h"

#include "ui/desktop.h"
#include "ui/layout.h"

#include <QHBoxLayout>

#include <cstddef>

namespace tarnwick::forms {
namespace {

constexpr std::array<std::string_view, 2> brg16Locations{"BAUDCON.3", "BAUDCTL.3"};
constexpr int unlimited = ui::EntryFieldTraits{}.maxLength;

}  // namespace

fEUSART::fEUSART(common::OscillatorSetting& oscillator)
    : Window("fEUSART", "EUSART Calc"),
      inputs_(this, oscillator, unlimited, [this] { CalcEUSART(); }) {
  layOut();
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
      table.group, "fBestMatch", "Best match",
      {{&best_.err, "trERR", "Error % :"}, {&best_.calcBaud, "trCalcBaud", "Calc baud :"}},
      {{&best_.spbrg, "trSPBRG", "SPBRG :"}, {&trSPBRGH, "trSPBRGH", "BRGH :"}});
  table.grid->addWidget(fBestMatch, 3, 0, 1, -1);
  ui::packTopLeft(table.grid);

  const RateTable table16 = rateTable(this, "fResults16", "Results BRG16=1", true,
                                      {"tSPBRG16_0", "tCalcBaud16_0", "tERR16_0"},
                                      {"tSPBRG16_1", "tCalcBaud16_1", "tERR16_1"});
  auto* fBestMatch16 = matchGroup(
      table16.group, "fBestMatch16", "Best match",
      {{&best16_.err, "trERR16", "Error % :"}, {&best16_.calcBaud, "trCalcBaud16", "Calc baud :"}},
      {{&best16_.spbrg, "trSPBRG16(0)", "SPBRG :"},
       {&best16_.spbrgh, "trSPBRG16(1)", "SPBRGH :"},
       {&trSPBRGH16, "trSPBRGH16", "BRGH :"}});
  table16.grid->addWidget(fBestMatch16, 3, 0, 1, -1);
  ui::packTopLeft(table16.grid);

  rows_ = {table.brgh0, table.brgh1, table16.brgh0, table16.brgh1};

  auto* fFinal =
      matchGroup(this, "fFinal", "Final best match",
                 {{&tfERR, "tfERR", "Error % :"}, {&tfCalcBaud, "tfCalcBaud", "Calc baud :"}},
                 {{&tfSPBRG, "tfSPBRG", "SPBRG :"},
                  {&TSPBRGH, "TSPBRGH", "SPBRGH :"},
                  {&tfBRGH, "tfBRGH", "BRGH :"},
                  {&tfBRG16, "tfBRG16", "BRG16 :"}});
  cCopyRegister = ui::button(this, "cCopyRegister", "Copy register settings to clipboard");
  CopyClip = ui::button(this, "CopyClip", "Copy PBP DEFINEs to clipboard");

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
  enableCopying(false);
  inputs_.load();
}

void fEUSART::CalcEUSART() {
  inputs_.clearPointFlags();
  const auto rows = calc::eusartRows(inputs_.fOSC->number(), inputs_.rate.baud());
  if (rows)
    showRows(*rows);
  else
    showFault();
}

// The best matches and the state of the BRG16 location stay as they were.
void fEUSART::showFault() {
  enableCopying(false);
  for (const RateFields& row : rows_) row.show(std::nullopt, false);
}

void fEUSART::showRows(const calc::EusartRows& rows) {
  const bool kBaud = inputs_.rate.cKBaud->isChecked();
  for (std::size_t i = 0; i < rows.size(); ++i) rows_[i].show(rows[i], kBaud);

  const auto best = calc::eusartBest(rows);
  if (!best) {
    showNoMatch();
    return;
  }
  dropBRG16->setEnabled(true);
  showMatch(rows, best->BestBRGH);
  showMatch16(rows, best->BestBRGH16);
  showFinalMatch(best->FinalBRG16);
  if (!dropBRG16->contents().empty()) enableCopying(true);
}

// The final SPBRGH and the best match of each group keep what they showed, deliberately.
void fEUSART::showNoMatch() {
  enableCopying(false);
  dropBRG16->setEnabled(false);
  for (ui::ResultField* field : {tfERR, tfCalcBaud, tfSPBRG, tfBRGH, tfBRG16})
    field->setContents("");
}

void fEUSART::showMatch(const calc::EusartRows& rows, std::optional<bool> brgh) {
  if (!brgh) {
    best_.show(std::nullopt, false);
    trSPBRGH->setContents("");
    return;
  }
  best_.show(rows[*brgh ? 1 : 0], inputs_.rate.cKBaud->isChecked());
  trSPBRGH->setContents(*brgh ? "1" : "0");
}

// Unless both rows are usable, the fields that are blanked beside this group's error are those of
// the other group, deliberately.
void fEUSART::showMatch16(const calc::EusartRows& rows, std::optional<bool> brgh) {
  if (!rows[2] || !rows[3]) {
    for (ui::ResultField* field : {best16_.err, best_.calcBaud, best_.spbrg, trSPBRGH})
      field->setContents("");
  }
  if (!brgh) return;
  best16_.show(rows[*brgh ? 3 : 2], inputs_.rate.cKBaud->isChecked());
  trSPBRGH16->setContents(*brgh ? "1" : "0");
}

void fEUSART::showFinalMatch(bool brg16) {
  const RateFields& best = brg16 ? best16_ : best_;
  tfERR->setContents(best.err->contents());
  tfCalcBaud->setContents(best.calcBaud->contents());
  tfSPBRG->setContents(best.spbrg->contents());
  TSPBRGH->setContents(brg16 ? best.spbrgh->contents() : "");
  tfBRGH->setContents((brg16 ? trSPBRGH16 : trSPBRGH)->contents());
  tfBRG16->setContents(brg16 ? "1" : "0");
}

void fEUSART::enableCopying(bool enabled) {
  CopyClip->setEnabled(enabled);
  cCopyRegister->setEnabled(enabled);
}

void fEUSART::dropBRG16_Click() {
  if (!dropBRG16->contents().empty()) enableCopying(true);
}

calc::EusartSetup fEUSART::setup() const {
  return {.goal = inputs_.goal(),
          .brg16 = tfBRG16->contents(),
          .brgh = tfBRGH->contents(),
          .spbrg = tfSPBRG->contents(),
          .spbrgh = TSPBRGH->contents(),
          .err = tfERR->contents(),
          .location = dropBRG16->contents()};
}

void fEUSART::cCopyRegister_Click() {
  ClipText = calc::EusartRegisterText(setup());
  ui::copyToClipboard(ClipText);
}

void fEUSART::CopyClip_Click() {
  ClipText = calc::EusartDefineText(setup());
  ui::copyToClipboard(ClipText);
}

}  // namespace tarnwick::forms
