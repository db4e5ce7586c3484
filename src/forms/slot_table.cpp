#include "forms/slot_table.h"

#include "common/number_text.h"
#include "ui/layout.h"
#include "ui/text.h"
#include "ui/twips.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <string_view>

namespace tarnwick::forms {
namespace {

constexpr int nameLength = calc::nameLength;
constexpr int slotPitch = ui::fromTwips(480);
constexpr int slotGap = 6;     // between fields, where a large font makes rows higher than that
constexpr int rowOfSlot0 = 1;  // below the headings
constexpr std::string_view widestData = " $00, $00, $00, $00, $00, $00, $00, $00";

std::string aboutSlot(int slot) {
  const std::string number = common::wholeText(slot);
  const unsigned address = static_cast<unsigned>(slot) * common::matrixRows;
  return "Character " + number + ": code " + number + ", CGRAM address " + calc::byteText(address) +
         ", which the command byte " + calc::byteText(0x40 + address) + " sets";
}

void showText(QLineEdit& field, const std::string& text) {
  if (ui::fromQt(field.text()) != text) field.setText(ui::toQt(text));
}

}  // namespace

SlotTable::SlotTable(QWidget* parent) : MarkedRows(parent) {
  layOut();
  connect(this, &MarkedRows::chosen, this, &SlotTable::choose);
  for (int row = rowOfSlot0; const Row& slot : rows) {
    chooseBy(slot.picture, row);
    chooseBy(slot.tChar, row);
    ++row;
  }
}

void SlotTable::layOut() {
  auto* table = ui::grid(this);
  table->setContentsMargins({});
  table->setVerticalSpacing(0);
  table->addWidget(ui::label(this, "lData", "Character data"), 0, 2);
  table->addWidget(ui::label(this, "lDescription", "Description/comment"), 0, 3);
  table->addWidget(ui::label(this, "lConstant", "Constant alias"), 0, 4);

  oChar = new ui::OptionGroup(this, "oChar");
  for (int i = 0; i < static_cast<int>(calc::slotCount); ++i) oChar->add(i, "");
  for (int i = 0; Row & slot : rows) {
    const std::string number = common::wholeText(i);
    slot.picture =
        new ui::PixelPicture(this, "Char" + number, {.off = ui::pixelOff, .bordered = true});
    slot.tChar = new ui::ResultField(this, ui::indexed("tChar", i), widestData);
    slot.tChar->setFrame(false);
    slot.tChar->setAlignment(Qt::AlignLeft);
    slot.tName = ui::textField(this, ui::indexed("tName", i), nameLength);
    slot.tConstant = ui::textField(this, ui::indexed("tConstant", i), nameLength);

    ui::nameAfter(oChar->button(i), "Character " + number);
    ui::nameAfter(slot.picture, "Picture of character " + number);
    ui::nameAfter(slot.tChar, "Character data " + number);
    ui::nameAfter(slot.tName, "Description/comment " + number);
    ui::nameAfter(slot.tConstant, "Constant alias " + number);

    const int row = rowOfSlot0 + i;
    table->setRowMinimumHeight(row, std::max(slotPitch, slot.tName->sizeHint().height() + slotGap));
    int column = 0;
    for (QWidget* control : std::initializer_list<QWidget*>{oChar->button(i), slot.picture,
                                                            slot.tChar, slot.tName, slot.tConstant})
      table->addWidget(control, row, column++, Qt::AlignVCenter);
    ++i;
  }
}

void SlotTable::describeCharacters() {
  for (int i = 0; const Row& row : rows) {
    const QString about = ui::toQt(aboutSlot(i));
    for (QWidget* control :
         std::initializer_list<QWidget*>{oChar->button(i), row.picture, row.tChar}) {
      const QString use = control->toolTip();
      control->setToolTip(use.isEmpty() ? about : about + "; " + use);
      control->setAccessibleDescription(control->toolTip());
    }
    ++i;
  }
}

void SlotTable::choose(int row) {
  const int slot = row - rowOfSlot0;
  oChar->select(slot);
  const QLineEdit* shown = rows.at(static_cast<std::size_t>(slot)).tChar;
  if (!shown->hasFocus() || shown->text().isEmpty())
    oChar->button(slot)->setFocus(Qt::MouseFocusReason);
}

void SlotTable::showCharacters(const calc::CharacterSet& characters) {
  oChar->select(characters.kept.SelectedSlot);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Row& row = rows[i];
    const calc::CharacterSlot& slot = characters.shown.slotTable[i];
    row.picture->setPixels(slot.picture);
    showText(*row.tChar, slot.dataDisplay);
    showText(*row.tName, slot.description);
    showText(*row.tConstant, slot.constantAlias);
    // The keys go on from the option of the selected slot, and not in another slot's name.
    const bool closes = !slot.enabled && (row.tName->hasFocus() || row.tConstant->hasFocus());
    const bool moves = oChar->button(static_cast<int>(i))->hasFocus();
    if (closes || moves) oChar->button(oChar->selected())->setFocus(Qt::OtherFocusReason);
    row.tName->setEnabled(slot.enabled);
    row.tConstant->setEnabled(slot.enabled);
  }
  mark(rowOfSlot0 + characters.kept.SelectedSlot);
}

}  // namespace tarnwick::forms
