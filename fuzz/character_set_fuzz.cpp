// Any order of the character editor's operations, beside a model made of plain arrays.

#include "calc/character_set.h"
#include "fuzz/input.h"

#include <array>

namespace {

using namespace tarnwick;
using calc::CharacterSet;
using calc::slotCount;
using fuzz::require;

struct ModelSlot {
  std::uint64_t picture = 0;
  std::string data;     // kept while the editor is closed
  std::string display;  // gone with the window, as all below
  std::string description;
  std::string alias;
  bool enabled = false;
};

struct Model {
  std::array<ModelSlot, slotCount> slots;
  std::array<unsigned, 8> labels{};
  std::uint64_t grid = 0;
  std::size_t selected = 0;

  unsigned rowOf(std::size_t row) const { return grid >> (row * 5) & 31U; }

  void erase() {
    grid = 0;
    slots[selected] = {};
  }

  // The grid has changed, and the labels with it.
  void refresh() {
    ModelSlot& slot = slots[selected];
    if (grid == 0) {
      erase();
      return;
    }
    slot.picture = grid;
    slot.enabled = true;
    slot.data.clear();
    for (const unsigned label : labels) {
      std::array<char, 8> text;
      std::snprintf(text.data(), text.size(), ", $%02X", label);
      slot.data += text.data();
    }
    slot.display = slot.data.substr(1);
  }

  void relabelAll() {
    for (std::size_t row = 0; row < labels.size(); ++row) labels[row] = rowOf(row);
  }

  void open() {
    slots[selected] = {};
    for (ModelSlot& slot : slots) slot = {.data = slot.data};
    labels = {};
    grid = 0;
    selected = 0;
  }

  void toggle(std::size_t pixel) {
    grid ^= std::uint64_t{1} << pixel;
    labels[pixel / 5] = rowOf(pixel / 5);
    refresh();
  }

  void select(std::size_t slot) {
    selected = slot;
    grid = slots[slot].picture;
    relabelAll();
    refresh();
  }

  // The slot has no pixel on in between when those that are on are the first ones without a gap.
  void invert() {
    const bool emptied = grid != 0 && (grid & (grid + 1)) == 0;
    if (emptied) slots[selected] = {};
    grid = ~grid & ((std::uint64_t{1} << 40) - 1);
    relabelAll();
    refresh();
  }

  void eraseAll() {
    for (ModelSlot& slot : slots) slot = {};
    select(0);
  }
};

void compare(const CharacterSet& set, const Model& model) {
  require(set.kept.Pixels.to_ullong() == model.grid, "the grid");
  require(set.kept.SelectedSlot == model.selected, "the selected slot");
  for (std::size_t i = 0; i < slotCount; ++i) {
    const calc::CharacterSlot& slot = set.shown.slotTable[i];
    const ModelSlot& wanted = model.slots[i];
    require(slot.picture.to_ullong() == wanted.picture, "a slot's picture");
    require(set.kept.CharacterData[i] == wanted.data, "a slot's data");
    require(slot.dataDisplay == wanted.display, "a slot's data as shown");
    require(slot.description == wanted.description && slot.constantAlias == wanted.alias,
            "a slot's description and alias");
    require(slot.enabled == wanted.enabled, "whether a slot's texts can be edited");
  }
  for (std::size_t row = 0; row < model.labels.size(); ++row)
    require(std::stoul(set.shown.lLine[row].substr(1), nullptr, 16) == model.labels[row],
            "a row's label");
}

void describe(CharacterSet& set, Model& model, std::size_t slot, const std::string& text) {
  if (!set.shown.slotTable[slot].enabled) return;
  set.shown.slotTable[slot].description = model.slots[slot].description = text;
  set.shown.slotTable[slot].constantAlias = model.slots[slot].alias = text + "!";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  CharacterSet set;
  OpenEditor(set);
  Model model;
  model.open();
  compare(set, model);

  for (int step = 0; step < 300 && input.remaining_bytes() > 0; ++step) {
    const auto pixel = input.ConsumeIntegralInRange<std::size_t>(0, common::matrixPixels - 1);
    const std::size_t slot = pixel % slotCount;
    switch (input.ConsumeIntegralInRange<int>(0, 15)) {
      case 0:
        OpenEditor(set), model.open();
        break;
      case 1:
        InvertAll(set), model.invert();
        break;
      case 2:
        Clear(set), model.labels = {}, model.erase();
        break;
      case 3:
        DeleteSelectedCharacter(set), model.erase();
        break;
      case 4:
        DeleteAll(set), model.eraseAll();
        break;
      case 5:
      case 6:
        SelectSlot(set, slot), model.select(slot);
        break;
      case 7:
        describe(set, model, slot, fuzz::fieldText(input));
        break;
      default:
        TogglePixel(set, pixel), model.toggle(pixel);
    }
    compare(set, model);
  }
  return 0;
}
