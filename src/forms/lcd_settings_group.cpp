#include "forms/lcd_settings_group.h"

#include "ui/layout.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace tarnwick::forms {
namespace {

using Items = std::span<const std::string_view>;

constexpr std::array<std::string_view, 10> ports{"PORTA", "PORTB", "PORTC", "PORTD", "PORTE",
                                                 "PORTF", "PORTG", "PORTH", "PORTI", "PORTJ"};
constexpr std::array<std::string_view, 8> bits{"0", "1", "2", "3", "4", "5", "6", "7"};
constexpr std::array<std::string_view, 2> dataBits{"0", "4"};
constexpr std::array<std::string_view, 2> busWidths{"4", "8"};
constexpr std::array<std::string_view, 2> lineCounts{"2", "4"};
constexpr int portB = 1;  // items of the lists
constexpr int first = 0;

ui::EditableList* list(QWidget* parent, std::string_view name, std::string_view spoken,
                       Items items) {
  auto* made = new ui::EditableList(parent, name, items, items.front());
  ui::nameAfter(made, spoken);
  return made;
}

}  // namespace

LcdSettingsGroup::LcdSettingsGroup(ui::Window* window)
    : group(ui::group(window, "fSettings", "LCD settings")) {
  layOut();
  connectEvents();
}

void LcdSettingsGroup::layOut() {
  auto* table = ui::grid(group);
  table->addWidget(ui::label(group, "lPort", "Port"), 0, 1, Qt::AlignHCenter);
  table->addWidget(ui::label(group, "lBit", "Bit"), 0, 2, Qt::AlignHCenter);

  const auto wire = [&](const std::string& name, std::string_view caption, Items bitItems) {
    const std::string spoken(caption.substr(0, caption.find(' ')));
    const int row = table->rowCount();
    const Wire made{list(group, "Port" + name, spoken + " port", ports),
                    list(group, "Bit" + name, spoken + " bit", bitItems)};
    table->addWidget(ui::label(group, "l" + name, caption), row, 0, Qt::AlignRight);
    table->addWidget(made.port, row, 1);
    table->addWidget(made.bit, row, 2);
    return made;
  };
  data = wire("Data", "Data", dataBits);
  registerSelect = wire("RS", "RS", bits);
  enable = wire("E", "E", bits);
  readWrite = wire("RW", "R/W ", bits);

  const auto setting = [&](int row, std::string_view name, std::string_view caption,
                           QWidget* field) {
    ui::nameAfter(field, caption);
    table->addWidget(ui::label(group, name, caption), row, 4, Qt::AlignRight);
    table->addWidget(field, row, 5, Qt::AlignLeft);
  };
  Bits = list(group, "Bits", "Mode", busWidths);
  Lines = list(group, "Lines", "Lines", lineCounts);
  tCommandUS = new ui::EntryField(group, "tCommandUS", {.maxLength = 4, .widest = "00000"});
  tDataUS = new ui::EntryField(group, "tDataUS", {.maxLength = 3, .widest = "00000"});
  setting(1, "lMode", "Mode", Bits);
  setting(2, "lLines", "Lines", Lines);
  setting(3, "lCommandUS", "Command (uSec)", tCommandUS);
  setting(4, "lDataUS", "Data (uSec)", tDataUS);
  table->addWidget(ui::label(group, "lBits", "bits"), 1, 6);
  constexpr int gap = 18;  // between the wires and the rest
  table->setColumnMinimumWidth(3, gap);
}

void LcdSettingsGroup::connectEvents() {
  for (const Wire& wire : {data, registerSelect, enable, readWrite}) {
    const auto change = [this, wire] { Port_Change(wire); };
    QObject::connect(wire.port, &ui::EditableList::edited, group, change);
    QObject::connect(wire.port, &ui::EditableList::chosen, group, change);
    QObject::connect(wire.port, &ui::EditableList::focusLost, group, change);
  }
  for (ui::EditableList* bit : {data.bit, registerSelect.bit, enable.bit})
    QObject::connect(bit, &ui::EditableList::focusLost, group,
                     [this, bit] { Bit_LostFocus(*bit); });
  QObject::connect(tCommandUS, &ui::EntryField::entered, group, [this] { tDataUS->setFocus(); });
  QObject::connect(tDataUS, &ui::EntryField::entered, group, [this] { tCommandUS->setFocus(); });
}

void LcdSettingsGroup::load() {
  data.port->choose(portB);
  data.bit->choose(first);
  registerSelect.port->choose(portB);
  registerSelect.bit->choose(4);
  enable.port->choose(portB);
  enable.bit->choose(5);
  readWrite.port->setCurrentIndex(-1);
  readWrite.bit->choose(first);
  Bits->choose(first);
  Lines->choose(first);
  tCommandUS->setContents("2000");
  tDataUS->setContents("50");
}

void LcdSettingsGroup::Port_Change(const Wire& wire) {
  wire.bit->setEnabled(!wire.port->contents().empty());
}

void LcdSettingsGroup::Bit_LostFocus(ui::EditableList& bit) {
  if (bit.contents().empty()) bit.choose(first);
}

calc::LcdSettings LcdSettingsGroup::contents() const {
  return {.dataPort = data.port->contents(),
          .dataBit = data.bit->contents(),
          .registerPort = registerSelect.port->contents(),
          .registerBit = registerSelect.bit->contents(),
          .enablePort = enable.port->contents(),
          .enableBit = enable.bit->contents(),
          .readWritePort = readWrite.port->contents(),
          .readWriteBit = readWrite.bit->contents(),
          .busWidth = Bits->contents(),
          .lines = Lines->contents(),
          .commandDelayUs = tCommandUS->contents(),
          .dataDelayUs = tDataUS->contents()};
}

}  // namespace tarnwick::forms
