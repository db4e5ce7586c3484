#include "forms/fCustomCharacter.h"

#include "common/number_text.h"
#include "forms/descriptions.h"
#include "ui/desktop.h"
#include "ui/keys.h"
#include "ui/layout.h"
#include "ui/text.h"
#include "ui/twips.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace tarnwick::forms {
namespace {

constexpr int nameLength = 20;
constexpr int slotPitch = ui::fromTwips(480);
constexpr int slotGap = 4;  // between fields, where a large font makes rows higher than that
constexpr std::string_view widestData = " $00, $00, $00, $00, $00, $00, $00, $00";

void showText(QLineEdit& field, const std::string& text) {
  if (ui::fromQt(field.text()) != text) field.setText(ui::toQt(text));
}

}  // namespace

fCustomCharacter::fCustomCharacter(calc::CharacterSet& characters)
    : Window("fCustomCharacter", "LCD Custom character generator"),
      settings_(this),
      characters_(characters) {
  layOut();
  describe(*this);
  connectEditor();
  Form_Load();
}

QWidget* fCustomCharacter::layOutSlots() {
  auto* parent = new QWidget(this);
  auto* table = ui::grid(parent);
  table->setContentsMargins({});
  table->setVerticalSpacing(0);
  table->addWidget(ui::label(parent, "lData", "Character data"), 0, 2);
  table->addWidget(ui::label(parent, "lDescription", "Description/comment"), 0, 3);
  table->addWidget(ui::label(parent, "lConstant", "Constant alias"), 0, 4);

  oChar = new ui::OptionGroup(parent, "oChar");
  for (int i = 0; i < static_cast<int>(calc::slotCount); ++i) oChar->add(i, "");
  for (int i = 0; SlotRow & slot : slotRows) {
    const std::string number = common::wholeText(i);
    slot.picture =
        new ui::PixelPicture(parent, "Char" + number, {.off = ui::pixelOff, .bordered = true});
    slot.tChar = new ui::ResultField(parent, ui::indexed("tChar", i), widestData);
    slot.tChar->setFrame(false);
    slot.tChar->setAlignment(Qt::AlignLeft);
    slot.tName = ui::textField(parent, ui::indexed("tName", i), nameLength);
    slot.tConstant = ui::textField(parent, ui::indexed("tConstant", i), nameLength);

    ui::nameAfter(oChar->button(i), "Character " + number);
    ui::nameAfter(slot.picture, "Picture of character " + number);
    ui::nameAfter(slot.tChar, "Character data " + number);
    ui::nameAfter(slot.tName, "Description/comment " + number);
    ui::nameAfter(slot.tConstant, "Constant alias " + number);

    const int row = ++i;
    table->setRowMinimumHeight(row, std::max(slotPitch, slot.tName->sizeHint().height() + slotGap));
    int column = 0;
    for (QWidget* control : std::initializer_list<QWidget*>{oChar->button(row - 1), slot.picture,
                                                            slot.tChar, slot.tName, slot.tConstant})
      table->addWidget(control, row, column++, Qt::AlignVCenter);
  }
  return parent;
}

QWidget* fCustomCharacter::layOutLcdText() {
  auto* group = ui::group(this, "fLcdText", "LCD text");
  uTleft = ui::textField(group, "uTleft", 2);
  uTright = ui::textField(group, "uTright", 2);
  for (QLineEdit* field : {uTleft, uTright}) field->setAlignment(Qt::AlignCenter);
  ui::nameAfter(uTleft, "Lead");
  ui::nameAfter(uTright, "Follow");
  auto* texts = ui::grid(group);
  texts->addWidget(ui::label(group, "lLead", "Lead"), 0, 0, Qt::AlignRight);
  texts->addWidget(uTleft, 0, 1);
  texts->addWidget(ui::label(group, "lFollow", "Follow"), 0, 2, Qt::AlignRight);
  texts->addWidget(uTright, 0, 3);
  texts->setColumnStretch(0, 1);
  texts->setColumnStretch(2, 1);
  return group;
}

QWidget* fCustomCharacter::layOutPixels() {
  auto* parent = new QWidget(this);
  chk = new ui::PixelGrid(parent, "chk");
  const int left = chk->width() + 8;
  int width = 0;
  for (int row = 0; QLabel * &label : lLine) {
    label = ui::label(parent, ui::indexed("lLine", row), "$00");
    ui::useFixedPitch(*label);
    width = label->sizeHint().width();
    label->setGeometry(left, chk->rowTop(row++), width, chk->rowHeight());
  }
  parent->setFixedSize(left + width, chk->height());
  return parent;
}

QWidget* fCustomCharacter::layOutGridButtons() {
  auto* group = ui::group(this, "fGrid", "Grid");
  cInvertAll = ui::button(group, "cInvertAll", "Invert all");
  cClear = ui::button(group, "cClear", "Clear");
  auto* buttons = ui::grid(group);
  buttons->addWidget(cInvertAll, 0, 0);
  buttons->addWidget(cClear, 1, 0);
  return group;
}

QWidget* fCustomCharacter::layOutResults() {
  auto* group = ui::group(this, "fResults", "Results");
  cDeleteChar = ui::button(group, "cDeleteChar", "Delete selected character");
  cDeletedAll = ui::button(group, "cDeletedAll", "Delete all");
  cCopyClip = ui::button(group, "cCopyClip", "Copy results to clipboard");
  ui::clickBy(*cCopyClip, Qt::ALT | Qt::Key_C);
  cInclude = ui::checkBox(group, "cInclude", "Include LCD Defines");
  auto* results = ui::grid(group);
  for (int row = 0; QWidget * control :
                    std::initializer_list<QWidget*>{cDeleteChar, cDeletedAll, cCopyClip, cInclude})
    results->addWidget(control, row++, 0);
  return group;
}

void fCustomCharacter::layOut() {
  auto* window = ui::grid(this);
  window->addWidget(settings_.group, 0, 0, 3, 1);
  window->addWidget(layOutSlots(), 3, 0, 2, 1, Qt::AlignTop);
  Image2 = new ui::LcdPanel(this);
  window->addWidget(ui::label(this, "lPreview", "Preview"), 0, 1, 1, 2,
                    Qt::AlignHCenter | Qt::AlignBottom);
  window->addWidget(Image2, 1, 1, 1, 2, Qt::AlignHCenter);
  window->addWidget(layOutLcdText(), 2, 1, 1, 2);
  window->addWidget(layOutPixels(), 3, 1, Qt::AlignCenter);
  window->addWidget(layOutGridButtons(), 3, 2);
  window->addWidget(layOutResults(), 4, 1, 1, 2);
  window->setRowStretch(0, 1);
  ui::fixToContent(this);
}

void fCustomCharacter::connectEditor() {
  using Self = fCustomCharacter;
  connect(oChar, &ui::OptionGroup::chosen, this, &Self::oChar_Click);
  for (std::size_t i = 0; i < slotRows.size(); ++i) {
    connect(slotRows[i].tName, &QLineEdit::textChanged, this, [this, i] { tName_Change(i); });
    connect(slotRows[i].tConstant, &QLineEdit::textChanged, this,
            [this, i] { tConstant_Change(i); });
  }
  connect(uTleft, &QLineEdit::textChanged, this, &Self::uTleft_Change);
  connect(uTright, &QLineEdit::textChanged, this, &Self::uTright_Change);
  connect(chk, &ui::PixelGrid::clicked, this, &Self::chk_Click);
  connect(cInvertAll, &QPushButton::clicked, this, &Self::cInvertAll_Click);
  connect(cClear, &QPushButton::clicked, this, &Self::cClear_Click);
  connect(cDeleteChar, &QPushButton::clicked, this, &Self::cDeleteChar_Click);
  connect(cDeletedAll, &QPushButton::clicked, this, &Self::cDeletedAll_Click);
  connect(cCopyClip, &QPushButton::clicked, this, &Self::cCopyClip_Click);
}

void fCustomCharacter::Form_Load() {
  settings_.load();
  calc::OpenEditor(characters_);
  showCharacters();
  uTleft->setText(ui::toQt(characters_.shown.leadText));
  uTright->setText(ui::toQt(characters_.shown.followText));
}

void fCustomCharacter::oChar_Click(int slot) {
  if (slot == characters_.kept.SelectedSlot) return;
  calc::SelectSlot(characters_, static_cast<std::size_t>(slot));
  showCharacters();
}

void fCustomCharacter::tName_Change(std::size_t slot) {
  characters_.shown.slotTable.at(slot).description = ui::fromQt(slotRows.at(slot).tName->text());
}

void fCustomCharacter::tConstant_Change(std::size_t slot) {
  characters_.shown.slotTable.at(slot).constantAlias =
      ui::fromQt(slotRows.at(slot).tConstant->text());
}

void fCustomCharacter::uTleft_Change() {
  calc::SetLeadText(characters_, ui::fromQt(uTleft->text()));
  showCharacters();
}

void fCustomCharacter::uTright_Change() {
  calc::SetFollowText(characters_, ui::fromQt(uTright->text()));
  showCharacters();
}

void fCustomCharacter::chk_Click(int pixel) {
  calc::TogglePixel(characters_, static_cast<std::size_t>(pixel));
  showCharacters();
}

void fCustomCharacter::cInvertAll_Click() {
  calc::InvertAll(characters_);
  showCharacters();
}

void fCustomCharacter::cClear_Click() {
  calc::Clear(characters_);
  showCharacters();
}

void fCustomCharacter::cDeleteChar_Click() {
  calc::DeleteSelectedCharacter(characters_);
  showCharacters();
}

void fCustomCharacter::cDeletedAll_Click() {
  calc::DeleteAll(characters_);
  showCharacters();
}

void fCustomCharacter::cCopyClip_Click() {
  ui::copyToClipboard(calc::BuildLcdText(settings_.contents(), cInclude->isChecked(), characters_));
}

void fCustomCharacter::showCharacters() {
  const auto& [kept, shown] = std::as_const(characters_);
  for (std::size_t i = 0; i < slotRows.size(); ++i) {
    const SlotRow& row = slotRows[i];
    const calc::CharacterSlot& slot = shown.slotTable[i];
    row.picture->setPixels(slot.picture);
    showText(*row.tChar, slot.dataDisplay);
    showText(*row.tName, slot.description);
    showText(*row.tConstant, slot.constantAlias);
    row.tName->setEnabled(slot.enabled);
    row.tConstant->setEnabled(slot.enabled);
  }
  oChar->select(kept.SelectedSlot);
  chk->setPixels(kept.Pixels);
  for (std::size_t row = 0; row < lLine.size(); ++row) {
    lLine[row]->setText(ui::toQt(shown.lLine[row]));
    const std::string number = common::wholeText(static_cast<int>(row) + 1);
    ui::nameAfter(lLine[row], "Row " + number + ", " + shown.lLine[row]);
  }
  Image2->setPixels(kept.Pixels);
  Image2->setTexts(shown.leadText, shown.followText);
}

}  // namespace tarnwick::forms
