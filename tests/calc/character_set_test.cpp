#include "calc/character_set.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdio>
#include <random>
#include <stdexcept>

namespace tarnwick::calc {
namespace {

// The same rules said a second time, each for the whole picture at once.
struct SimpleEditor {
  CharacterSet set;

  common::PixelMatrix& grid() { return set.kept.Pixels; }
  std::string& data() { return set.kept.CharacterData[set.kept.SelectedSlot]; }
  CharacterSlot& slot() { return set.shown.slotTable[set.kept.SelectedSlot]; }

  void relabel(std::size_t row) {
    char text[8];
    std::snprintf(text, sizeof text, "$%02llX", (grid().to_ullong() >> 5 * row) & 31);
    set.shown.lLine[row] = text;
  }
  void rebuild() {
    if (grid().none()) return remove();
    data().clear();
    for (const std::string& label : set.shown.lLine) data() += ", " + label;
    slot().dataDisplay = data().substr(1);
    slot().picture = grid();
    slot().enabled = true;
  }
  void touch(std::size_t pixel) {
    grid().flip(pixel);
    relabel(pixel / 5);
    rebuild();
  }
  void choose(std::uint8_t chosen) {
    set.kept.SelectedSlot = chosen;
    show(slot().picture);
  }
  void show(common::PixelMatrix picture) {
    grid() = picture;
    for (std::size_t row = 0; row < 8; ++row) relabel(row);
    rebuild();
  }
  // On the way from pixel 0 the slot is blank exactly when the pixels that are on are the first.
  void invert() {
    const common::PixelMatrix before = grid();
    if (before.any() && std::has_single_bit(before.to_ullong() + 1)) remove();
    show(~before);
  }
  void remove() {
    slot() = {};
    data().clear();
    grid().reset();
  }
  void clear() {
    remove();
    set.shown.lLine.fill("$00");
  }
  void removeAll() {
    set.kept = {};
    showAnew(set.shown.leadText, set.shown.followText);
  }
  void open() {
    data().clear();
    grid().reset();
    set.kept.SelectedSlot = 0;
    showAnew("AB", "CD");
  }
  void showAnew(std::string lead, std::string follow) {
    set.shown = {};
    set.shown.lLine.fill("$00");
    set.shown.leadText = std::move(lead);
    set.shown.followText = std::move(follow);
  }
};

// Everything that the window shows, and the data that only the copied text shows.
std::string wholeState(const CharacterSet& set) {
  std::string text = set.kept.Pixels.to_string() + std::to_string(set.kept.SelectedSlot) +
                     set.shown.leadText + set.shown.followText;
  for (const std::string& label : set.shown.lLine) text += label;
  for (std::size_t i = 0; i < slotCount; ++i) {
    const CharacterSlot& slot = set.shown.slotTable[i];
    text += "\n" + slot.picture.to_string() + "|" + set.kept.CharacterData[i] + "|" +
            slot.dataDisplay + "|" + slot.description + "|" + slot.constantAlias +
            (slot.enabled ? "|on" : "|off");
  }
  return text;
}

TEST(CharacterSet, AgreesWithASimplerStatementOfItsRules) {
  std::mt19937 random(20);  // NOLINT: the same operations in every run
  const auto below = [&random](unsigned n) { return static_cast<std::uint8_t>(random() % n); };
  CharacterSet set = OpenEditor({});
  SimpleEditor simple;
  simple.open();
  std::size_t pixel = 0;
  for (int step = 0; step < 100'000; ++step) {
    const auto dice = below(100);
    if (dice < 60) {
      // Half of the toggles take the pixel before once more, so that slots often become blank; the
      // top row is taken often, so that inverting blanks slots on its way.
      if (below(2) == 0) pixel = below(3) == 0 ? below(5) : below(40);
      set = TogglePixel(std::move(set), pixel), simple.touch(pixel);
    } else if (dice < 72) {
      const auto chosen = below(8);
      set = SelectSlot(std::move(set), chosen), simple.choose(chosen);
    } else if (dice < 78) {
      set = InvertAll(std::move(set)), simple.invert();
    } else if (dice < 81) {
      set = Clear(std::move(set)), simple.clear();
    } else if (dice < 87) {
      set = DeleteSelectedCharacter(std::move(set)), simple.remove();
    } else if (dice < 88) {
      set = DeleteAll(std::move(set)), simple.removeAll();
    } else if (dice < 90) {
      set = OpenEditor(std::move(set)), simple.open();
    } else if (dice < 92) {
      simple.set.shown.leadText = std::to_string(step), simple.set.shown.followText = "x";
      set = SetFollowText(SetLeadText(std::move(set), std::to_string(step)), "x");
    } else if (simple.slot().enabled) {
      for (CharacterSlot* slot : {&simple.slot(), &set.shown.slotTable[set.kept.SelectedSlot]})
        slot->description = slot->constantAlias = "text" + std::to_string(step);
    }
    ASSERT_EQ(wholeState(set), wholeState(simple.set)) << "step " << step << ", dice " << +dice;
  }
}

TEST(CharacterSet, ShowsItsRowsAsHexadecimalBytes) {
  const CharacterSet left = TogglePixel(OpenEditor({}), 4);
  EXPECT_EQ(left.kept.CharacterData[0], ", $10, $00, $00, $00, $00, $00, $00, $00");
  EXPECT_EQ(InvertAll(left).shown.slotTable[0].dataDisplay,
            " $0F, $1F, $1F, $1F, $1F, $1F, $1F, $1F");
}

TEST(CharacterSet, RefusesPixelsAndSlotsThatDoNotExist) {
  EXPECT_THROW((void)TogglePixel({}, common::matrixPixels), std::out_of_range);
  EXPECT_THROW((void)SelectSlot({}, slotCount), std::out_of_range);
}

}  // namespace
}  // namespace tarnwick::calc
