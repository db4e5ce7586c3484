#include "forms/fSerinSerout2.h"

#include "forms/descriptions.h"
#include "ui/desktop.h"
#include "ui/keys.h"
#include "ui/layout.h"
#include "ui/result_look.h"
#include "ui/twips.h"

#include <algorithm>
#include <utility>

namespace tarnwick::forms {
namespace {

constexpr int driven = 1;  // oOutput
constexpr int open = 2;
constexpr int trueLevels = 1;  // oConversion
constexpr int inverted = 2;
constexpr int odd = static_cast<int>(calc::Ser2Parity::Odd);  // oParity
constexpr int none = static_cast<int>(calc::Ser2Parity::None);
constexpr int even = static_cast<int>(calc::Ser2Parity::Even);

// Horizontal places, in pixels from the left edge of the window.
constexpr int groupsLeft = ui::fromTwips(120);
constexpr int labelAlone = ui::fromTwips(1680);
constexpr int labelBesideButton = ui::fromTwips(480);
constexpr int labelToField = ui::fromTwips(720);

}  // namespace

fSerinSerout2::fSerinSerout2()
    : Window("fSerinSerout2", "Serin2, Serout2 Calc"),
      inputs_(this, "tBaud",
              {.keys = common::decimalKey,
               .pointTyped = &BaudPointTyped,
               .clearsPointOnEntering = true,
               .validatesOnFocusLost = true},
              BaudControls::Choice::UnitFirst, [this] { CalcMode(); }),
      tBaud(inputs_.field) {
  layOut();
  describe(*this);
  connectEvents();
  Form_Load();
}

void fSerinSerout2::layOut() {
  auto* fOutput = ui::group(this, "fOutput", "Output");
  oOutput = new ui::OptionGroup(fOutput, "oOutput");
  ui::row(fOutput, {oOutput->add(driven, "Driven"), oOutput->add(open, "Open")});

  auto* fConversion = ui::group(this, "fConversion", "Conversion");
  oConversion = new ui::OptionGroup(fConversion, "oConversion");
  ui::row(fConversion,
          {oConversion->add(trueLevels, "True"), oConversion->add(inverted, "Inverted")});

  auto* fParity = ui::group(this, "fParity", "Parity");
  oParity = new ui::OptionGroup(fParity, "oParity");
  ui::row(fParity,
          {oParity->add(none, "None"), oParity->add(even, "Even"), oParity->add(odd, "Odd")});

  layOutResults();

  auto* window = ui::grid(this);
  QMargins margins = window->contentsMargins();
  margins.setLeft(groupsLeft);
  window->setContentsMargins(margins);
  window->addWidget(inputs_.baudGroup, 0, 0, 1, 2);
  window->addWidget(inputs_.commonGroup, 0, 2);
  window->addWidget(fOutput, 1, 0);
  window->addWidget(fConversion, 1, 1);
  window->addWidget(fParity, 1, 2);
  window->addWidget(fResults, 2, 0, 1, 3);
  ui::dimWhileEdited(tBaud, tMode);
  ui::fixToContent(this);
}

// The results stand at fixed places: label and field move aside when the button appears.
void fSerinSerout2::layOutResults() {
  fResults = ui::group(this, "fResults", "Results");
  tLabel = ui::label(fResults, "tLabel", "Mode :");
  tMode = new ui::ResultField(fResults, "tMode", "000000", ui::Weight::Answer);
  tLabel->setBuddy(tMode);
  ui::nameAfter(tMode, "Mode");
  cCopyClip = ui::button(fResults, "cCopyClip", "Copy the additional PBP DEFINE to clipboard");
  ui::clickBy(*cCopyClip, Qt::ALT | Qt::Key_C);

  constexpr int gap = 8;
  const int top = fResults->contentsMargins().top() + gap;
  const int height = std::max(tMode->sizeHint().height(), cCopyClip->sizeHint().height());
  tLabel->setGeometry(0, top, std::max(labelToField, tLabel->sizeHint().width()), height);
  tMode->setGeometry(0, top, tMode->minimumWidth(), height);
  placeMode(labelBesideButton);
  cCopyClip->setGeometry(tMode->x() + tMode->width() + gap, top, cCopyClip->sizeHint().width(),
                         height);
  fResults->setMinimumSize(cCopyClip->geometry().right() + gap, top + height + gap);
}

void fSerinSerout2::connectEvents() {
  connect(tBaud, &ui::EntryField::validate, this, &fSerinSerout2::tBaud_Validate);
  connect(tBaud, &ui::EntryField::entered, this, [this] { inputs_.cKBaud->setFocus(); });
  for (ui::OptionGroup* options : {oOutput, oConversion, oParity})
    connect(options, &ui::OptionGroup::chosen, this, &fSerinSerout2::CalcMode);
  connect(cCopyClip, &QPushButton::clicked, this, &fSerinSerout2::cCopyClip_Click);
}

void fSerinSerout2::Form_Load() {
  oOutput->select(driven);
  oConversion->select(trueLevels);
  oParity->select(none);
  show({});
  inputs_.chooseDefault();
  CalcMode();
}

calc::Ser2Inputs fSerinSerout2::inputs() const {
  return {.rate = tBaud->number(),
          .kBaud = inputs_.cKBaud->isChecked(),
          .open = oOutput->selected() != driven,
          .inverted = oConversion->selected() != trueLevels,
          .parity = static_cast<calc::Ser2Parity>(oParity->selected())};
}

void fSerinSerout2::CalcMode() {
  show(calc::next(shown_, inputs()));
}

void fSerinSerout2::show(calc::Ser2Shown shown) {
  shown_ = std::move(shown);
  tMode->setContents(shown_.mode);
  placeMode(shown_.offersOdd ? labelBesideButton : labelAlone);
  cCopyClip->setVisible(shown_.offersOdd);
}

// A label in a large font pushes its field to the right.
void fSerinSerout2::placeMode(int labelLeft) {
  tLabel->move(labelLeft - groupsLeft, tLabel->y());
  tMode->move(tLabel->x() + tLabel->width(), tMode->y());
}

void fSerinSerout2::tBaud_Validate() {
  if (tBaud->number() == 0) tBaud->setContents("9600");
  CalcMode();
}

void fSerinSerout2::cCopyClip_Click() {
  ui::copyToClipboard(calc::oddParityDefine);
}

}  // namespace tarnwick::forms
