#include "calc/character_set.h"

#include <gtest/gtest.h>

#include <map>
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
  const auto below = [&random](unsigned n) { return static_cast<int>(random() % n); };
  CharacterSet set = OpenEditor({});
  SimpleEditor simple;
  std::map<std::string, int> seen;
  int row = 0;
  int column = 0;
  for (int step = 0; step < 100'000; ++step) {
    const int kind = below(100);
    std::string done;
    if (kind < 60) {
      // Half of the toggles take the pixel before once more, so that slots often become blank; the
      // top row is taken often, so that inverting blanks slots on its way.
      if (below(2) == 0) row = below(3) == 0 ? 0 : below(8), column = below(5);
      done = "toggle " + std::to_string(row) + " " + std::to_string(column);
      set = TogglePixel(std::move(set), static_cast<std::size_t>(row * 5 + 4 - column));
      simple.touch(row, column);
    } else if (kind < 72) {
      const auto chosen = static_cast<std::size_t>(below(8));
      done = "select " + std::to_string(chosen);
      set = SelectSlot(std::move(set), chosen);
      simple.choose(chosen);
    } else if (kind < 78) {
      done = "invert";
      set = InvertAll(std::move(set));
      simple.invert();
    } else if (kind < 81) {
      done = "clear";
      set = Clear(std::move(set));
      simple.clear();
    } else if (kind < 87) {
      done = "delete";
      set = DeleteSelectedCharacter(std::move(set));
      simple.remove();
    } else if (kind < 88) {
      done = "remove all";
      set = DeleteAll(std::move(set));
      simple.removeAll();
    } else if (kind < 90) {
      done = "open anew";
      set = OpenEditor(std::move(set));
      simple.open();
    } else if (kind < 92) {
      done = "lead and follow";
      simple.lead = std::to_string(below(100));
      simple.follow = std::to_string(below(100));
      set = SetFollowText(SetLeadText(std::move(set), simple.lead), simple.follow);
    } else if (simple.slots[simple.current].editable) {
      done = "name";
      Drawn& drawn = simple.slots[simple.current];
      set.shown.slotTable[simple.current].description = drawn.description =
          "text " + std::to_string(step);
      set.shown.slotTable[simple.current].constantAlias = drawn.alias =
          "Alias" + std::to_string(step);
    }
    ++seen[done.substr(0, done.find(' '))];
    ASSERT_EQ(wholeState(set), wholeState(simple)) << "after step " << step << ": " << done;
  }
  for (const char* kind :
       {"toggle", "select", "invert", "clear", "delete", "remove", "open", "lead", "name"})
    EXPECT_GT(seen[kind], 500) << kind;
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

TEST(CharacterSet, LeavesTheRowLabelsOfADeletedCharacter) {
  CharacterSet set = DeleteSelectedCharacter(InvertAll(OpenEditor({})));
  EXPECT_EQ(set.shown.lLine[7], "$1F");
  set = TogglePixel(std::move(set), 2);
  EXPECT_EQ(set.shown.slotTable[0].dataDisplay, " $04, $1F, $1F, $1F, $1F, $1F, $1F, $1F");
  EXPECT_EQ(set.shown.slotTable[0].picture.count(), 1U);
  EXPECT_EQ(SelectSlot(SelectSlot(set, 1), 0).shown.slotTable[0].dataDisplay,
            " $04, $00, $00, $00, $00, $00, $00, $00");
  EXPECT_EQ(Clear(set).shown.lLine[7], "$00");
}

TEST(CharacterSet, KeepsTheDataOfOtherSlotsWhenTheWindowIsOpenedAnew) {
  CharacterSet set = TogglePixel(SelectSlot(TogglePixel(OpenEditor({}), 4), 3), 0);
  set.shown.slotTable[0].description = "lost";
  set = OpenEditor(std::move(set));
  EXPECT_EQ(set.kept.CharacterData[0], ", $10, $00, $00, $00, $00, $00, $00, $00");
  EXPECT_EQ(set.kept.CharacterData[3], "");
  EXPECT_EQ(set.kept.SelectedSlot, 0);
  EXPECT_EQ(set.shown.slotTable[0].dataDisplay + set.shown.slotTable[0].description, "");
  EXPECT_TRUE(set.shown.slotTable[0].picture.none());
  EXPECT_EQ(SelectSlot(std::move(set), 0).kept.CharacterData[0], "");
}

TEST(CharacterSet, RefusesPixelsAndSlotsThatDoNotExist) {
  const CharacterSet set = OpenEditor({});
  EXPECT_THROW((void)TogglePixel(set, common::matrixPixels), std::out_of_range);
  EXPECT_THROW((void)SelectSlot(set, slotCount), std::out_of_range);
}

}  // namespace
}  // namespace tarnwick::calc
