#include "calc/character_set.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <set>
#include <stdexcept>
#include <vector>

namespace tarnwick::calc {
namespace {

// The same rules said a second time: pixels are sets of (row, column from the left), labels a list,
// and a row's value is read from a picture of it in binary digits.
using Dots = std::set<std::pair<int, int>>;

struct Drawn {
  Dots dots;
  std::string data, shown, description, alias;
  bool editable = false;
};

class SimpleEditor {
public:
  std::vector<Drawn> slots = std::vector<Drawn>(8);
  std::vector<std::string> labels;
  std::size_t current = 0;
  std::string lead, follow;

  SimpleEditor() { open(); }

  void open() {
    std::vector<Drawn> fresh(8);
    for (std::size_t i = 0; i < 8; ++i) fresh[i].data = i == current ? "" : slots[i].data;
    *this = SimpleEditor(fresh);
  }
  void touch(int row, int column) {
    if (!dots().erase({row, column})) dots().insert({row, column});
    relabel(row);
    rebuild();
  }
  void choose(std::size_t slot) {
    current = slot;
    for (int row = 0; row < 8; ++row) relabel(row);
    rebuild();
  }
  // Inverting goes from the top row down, in each row from the right: on the way the slot is blank
  // exactly when the dots that are on are the first ones on that way.
  void invert() {
    std::size_t leading = 0;
    while (leading < 40 && dots().contains(onTheWay(leading))) ++leading;
    Dots inverse;
    for (std::size_t i = 0; i < 40; ++i)
      if (!dots().contains(onTheWay(i))) inverse.insert(onTheWay(i));
    if (leading > 0 && leading == dots().size()) remove();
    dots() = inverse;
    choose(current);
  }
  void remove() { slots[current] = {}; }
  void clear() {
    remove();
    labels.assign(8, "$00");
  }
  void removeAll() { *this = SimpleEditor(lead, follow); }

private:
  explicit SimpleEditor(std::vector<Drawn> fresh)
      : slots(std::move(fresh)), labels(8, "$00"), lead("AB"), follow("CD") {}
  SimpleEditor(std::string left, std::string right)
      : labels(8, "$00"), lead(std::move(left)), follow(std::move(right)) {}

  static std::pair<int, int> onTheWay(std::size_t i) {
    return {static_cast<int>(i) / 5, 4 - static_cast<int>(i) % 5};
  }
  Dots& dots() { return slots[current].dots; }
  void relabel(int row) {
    std::string digits;
    for (int column = 0; column < 5; ++column) digits += dots().contains({row, column}) ? '1' : '0';
    char text[8];
    std::snprintf(text, sizeof text, "$%02X", static_cast<unsigned>(std::stoi(digits, nullptr, 2)));
    labels[static_cast<std::size_t>(row)] = text;
  }
  void rebuild() {
    if (dots().empty()) return remove();
    Drawn& slot = slots[current];
    slot.shown.clear();
    for (const std::string& label : labels) slot.shown += (slot.shown.empty() ? " " : ", ") + label;
    slot.data = "," + slot.shown;
    slot.editable = true;
  }
};

std::string pictureText(const common::PixelMatrix& pixels) {
  std::string text;
  for (std::size_t row = 0; row < 8; ++row) {
    for (std::size_t bit = 5; bit-- > 0;) text += pixels.test(row * 5 + bit) ? '#' : '.';
  }
  return text;
}

std::string pictureText(const Dots& dots) {
  std::string text(40, '.');
  for (auto [row, column] : dots) text[static_cast<std::size_t>(row * 5 + column)] = '#';
  return text;
}

// Everything that the window shows, and the data that only the copied text shows.
std::string wholeState(const CharacterSet& set) {
  std::string text = pictureText(set.kept.Pixels) + std::to_string(set.kept.SelectedSlot) +
                     set.shown.leadText + set.shown.followText;
  for (const std::string& label : set.shown.lLine) text += label;
  for (std::size_t i = 0; i < 8; ++i) {
    const CharacterSlot& slot = set.shown.slotTable[i];
    text += "\n" + pictureText(slot.picture) + "|" + set.kept.CharacterData[i] + "|" +
            slot.dataDisplay + "|" + slot.description + "|" + slot.constantAlias +
            (slot.enabled ? "|on" : "|off");
  }
  return text;
}

std::string wholeState(const SimpleEditor& editor) {
  std::string text = pictureText(editor.slots.at(editor.current).dots) +
                     std::to_string(editor.current) + editor.lead + editor.follow;
  for (const std::string& label : editor.labels) text += label;
  for (std::size_t i = 0; i < 8; ++i) {
    const Drawn& slot = editor.slots.at(i);
    text += "\n" + pictureText(slot.dots) + "|" + slot.data + "|" + slot.shown + "|" +
            slot.description + "|" + slot.alias + (slot.editable ? "|on" : "|off");
  }
  return text;
}

TEST(CharacterSet, AgreesWithASimplerStatementOfItsRules) {
  std::mt19937 random(20);  // NOLINT: the same operations in every run
  const auto below = [&random](unsigned n) { return static_cast<std::size_t>(random() % n); };
  CharacterSet set = OpenEditor({});
  SimpleEditor simple;
  std::size_t row = 0;
  std::size_t column = 0;
  int step = 0;
  struct Operation {
    const char* name;
    unsigned share;
    std::function<void()> run;
    int times = 0;
  };
  std::vector<Operation> operations{
      {"toggle", 60,
       [&] {
         // Half of the toggles take the pixel before once more, so that slots often become blank;
         // the top row is taken often, so that inverting blanks slots on its way.
         if (below(2) == 0) row = below(3) == 0 ? 0 : below(8), column = below(5);
         set = TogglePixel(std::move(set), row * 5 + 4 - column);
         simple.touch(static_cast<int>(row), static_cast<int>(column));
       }},
      {"select", 12,
       [&] {
         const std::size_t chosen = below(8);
         set = SelectSlot(std::move(set), chosen);
         simple.choose(chosen);
       }},
      {"invert", 6, [&] { set = InvertAll(std::move(set)), simple.invert(); }},
      {"clear", 3, [&] { set = Clear(std::move(set)), simple.clear(); }},
      {"delete", 6, [&] { set = DeleteSelectedCharacter(std::move(set)), simple.remove(); }},
      {"delete all", 1, [&] { set = DeleteAll(std::move(set)), simple.removeAll(); }},
      {"open anew", 2, [&] { set = OpenEditor(std::move(set)), simple.open(); }},
      {"lead and follow", 2,
       [&] {
         simple.lead = std::to_string(below(100));
         simple.follow = std::to_string(below(100));
         set = SetFollowText(SetLeadText(std::move(set), simple.lead), simple.follow);
       }},
      {"name", 8, [&] {
         Drawn& drawn = simple.slots[simple.current];
         CharacterSlot& slot = set.shown.slotTable[simple.current];
         if (!drawn.editable) return;
         slot.description = drawn.description = "text " + std::to_string(step);
         slot.constantAlias = drawn.alias = "Alias" + std::to_string(step);
       }}};
  for (; step < 100'000; ++step) {
    std::size_t dice = below(100);
    auto operation = operations.begin();
    while (dice >= operation->share) dice -= operation++->share;
    operation->run();
    ++operation->times;
    ASSERT_EQ(wholeState(set), wholeState(simple)) << "step " << step << ": " << operation->name;
  }
  for (const Operation& operation : operations) EXPECT_GT(operation.times, 500) << operation.name;
}

TEST(CharacterSet, ShowsTheRowsOfAPixelAsHexadecimalBytes) {
  const CharacterSet blank = OpenEditor({});
  const CharacterSet left = TogglePixel(blank, 4);
  EXPECT_EQ(left.kept.CharacterData[0], ", $10, $00, $00, $00, $00, $00, $00, $00");
  EXPECT_EQ(left.shown.slotTable[0].dataDisplay, " $10, $00, $00, $00, $00, $00, $00, $00");
  EXPECT_TRUE(left.shown.slotTable[0].enabled);
  EXPECT_EQ(TogglePixel(blank, 0).shown.lLine[0], "$01");
  EXPECT_EQ(TogglePixel(blank, 38).shown.lLine[7], "$08");
  EXPECT_EQ(InvertAll(blank).shown.slotTable[0].dataDisplay,
            " $1F, $1F, $1F, $1F, $1F, $1F, $1F, $1F");
  EXPECT_EQ(CgramCommand[0], "LCDOUT $FE, $40");
  EXPECT_EQ(CgramCommand[7], "LCDOUT $FE, $78");
}

TEST(CharacterSet, RefusesPixelsAndSlotsThatDoNotExist) {
  const CharacterSet set = OpenEditor({});
  EXPECT_THROW((void)TogglePixel(set, common::matrixPixels), std::out_of_range);
  EXPECT_THROW((void)SelectSlot(set, slotCount), std::out_of_range);
}

}  // namespace
}  // namespace tarnwick::calc
