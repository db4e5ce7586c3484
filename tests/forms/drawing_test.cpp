#include "calc/lcd_text.h"
#include "support/look.h"
#include "support/program.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QScrollArea>

#include <functional>
#include <random>
#include <tuple>

namespace tarnwick::tests {
namespace {

// A cell of the grid, or a place of that size beside it, from the top left on.
struct Cell {
  int row;
  int column;

  bool exists() const { return row >= 0 && row < 8 && column >= 0 && column < 5; }
  int pixel() const { return row * 5 + 4 - column; }
};

std::string of(const std::string& family, int index) {
  return family + "(" + std::to_string(index) + ")";
}

class Drawing : public Program {
protected:
  Drawing() { open("cCustomChar", "fCustomCharacter"); }

  QWindow* screen() { return current()->windowHandle(); }
  QPoint centre(Cell at) {
    auto* first = control("chk(4)");
    if (auto* area = current()->findChild<QScrollArea*>(); area != nullptr)
      area->ensureWidgetVisible(first->parentWidget());
    const int pitch = control("chk(3)")->x() - first->x();
    return first->mapTo(current(), first->rect().center()) + QPoint(at.column, at.row) * pitch;
  }
  // The mouse is reported at these places alone, the last one when its button is released.
  void drag(const std::vector<Cell>& places) {
    QTest::mousePress(screen(), Qt::LeftButton, {}, centre(places.front()));
    for (std::size_t i = 1; i + 1 < places.size(); ++i)
      QTest::mouseMove(screen(), centre(places[i]));
    QTest::mouseRelease(screen(), Qt::LeftButton, {}, centre(places.back()));
  }
};

TEST_F(Drawing, PaintsWhatAFastDragCrosses) {
  drag({{0, 0}, {7, 0}});
  EXPECT_EQ(shown("tChar(0)"), " $10, $10, $10, $10, $10, $10, $10, $10");
  // Out of the grid, and back into it from the other side
  drag({{1, 4}, {1, 9}, {6, 9}, {6, -3}, {3, -3}, {3, 2}});
  EXPECT_EQ(shown("tChar(0)"), " $10, $11, $10, $1C, $10, $10, $1F, $10");
  // What has the first cell's new state already keeps it, also on the way back
  drag({{7, 0}, {3, 4}, {7, 0}});
  QTest::mouseMove(screen(), centre({0, 2}));
  QTest::mouseClick(screen(), Qt::MiddleButton, {}, centre({5, 4}));
  EXPECT_EQ(shown("tChar(0)"), " $10, $11, $10, $1C, $10, $10, $17, $00");
}

TEST_F(Drawing, NamesItsKeysInTheMenuOfTheGrid) {
  drag({{0, 0}, {0, 1}});
  click("chk(20)", Qt::RightButton);
  const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QStringList texts;
  for (const QAction* command : menu->actions())
    if (!command->isSeparator())
      texts << command->text() + ' ' + QKeySequence::listToString(command->shortcuts());
  EXPECT_EQ(ui::fromQt(texts.join(". ")),
            "Shift left Ctrl+Left. Shift right Ctrl+Right. Shift up Ctrl+Up. Shift down Ctrl+Down. "
            "Mirror Ctrl+M. Turn upside down Ctrl+U. Invert Ctrl+I. Copy the character Ctrl+C. "
            "Paste Ctrl+V. Undo Ctrl+Z. Redo Ctrl+Shift+Z; Ctrl+Y");
  menu->actions().front()->trigger();
  EXPECT_EQ(shown("tChar(0)"), " $11, $00, $00, $00, $00, $00, $00, $00");
}

TEST_F(Drawing, SelectsTheSlotWhosePictureOrDataIsClicked) {
  click("Char6");
  press(Qt::Key_Up);
  EXPECT_EQ(shown("oChar(5)"), "on");
  click("tChar(7)");
  EXPECT_EQ(shown("oChar(7)"), "on");
  const auto ground = [&](const std::string& field) {
    const QPoint above = control(field)->mapTo(current(), QPoint(0, -2));
    return onScreen(current()).pixelColor(above);
  };
  EXPECT_EQ(ground("tName(5)"), ground("tName(6)"));
  EXPECT_NE(ground("tName(7)"), ground("tName(6)"));
  EXPECT_EQ(ui::fromQt(control("Char7")->toolTip()),
            "Character 7: code 7, CGRAM address $38, which the command byte $78 sets");
}

// The editor's characters, made of plain arrays: it knows how to toggle, delete and select.
struct Model {
  struct Slot {
    std::uint64_t picture = 0;
    std::string data;  // kept while the window is closed
    std::string description;
    std::string alias;
    bool operator==(const Slot&) const = default;
  };

  std::array<Slot, 8> table;
  std::array<unsigned, 8> labels{};
  std::size_t selected = 0;
  bool operator==(const Model&) const = default;

  std::uint64_t& picture() { return table[selected].picture; }
  bool isOn(int pixel) { return (picture() >> pixel & 1U) != 0; }

  void erase() { table[selected] = {}; }

  void refresh(std::size_t row) {
    labels[row] = picture() >> row * 5 & 31U;
    if (picture() == 0) return erase();
    std::string& data = table[selected].data;
    data.clear();
    for (const unsigned label : labels) data += QString::asprintf(", $%02X", label).toStdString();
  }

  void toggle(int pixel) {
    picture() ^= std::uint64_t{1} << pixel;
    refresh(static_cast<std::size_t>(pixel) / 5);
  }

  void toggleAll() {
    for (int pixel = 0; pixel < 40; ++pixel) toggle(pixel);
  }

  void paint(int pixel, bool on) {
    if (isOn(pixel) != on) toggle(pixel);
  }

  // First the pixels that go on.
  void draw(std::uint64_t wanted) {
    for (const bool on : {true, false})
      for (int pixel = 0; pixel < 40; ++pixel)
        if ((wanted >> pixel & 1U) == on) paint(pixel, on);
  }

  void select(std::size_t slot) {
    selected = slot;
    for (std::size_t row = 0; row < 8; ++row) refresh(row);
  }

  void clear() {
    labels = {};
    erase();
  }

  void eraseAll() {
    table = {};
    select(0);
  }

  void open() {
    clear();
    for (Slot& slot : table) slot = {0, slot.data, "", ""};
    selected = 0;
  }

  // Takes over the characters whose copied text is pasted.
  void paste(const Model& copied) {
    for (std::size_t i = 8; i-- > 0;) {
      const Slot& source = copied.table[i];
      if (source.data.empty()) continue;
      std::uint64_t wanted = 0;
      for (std::size_t row = 8; row-- > 0;)
        wanted = wanted << 5 | std::stoul(source.data.substr(row * 5 + 3), nullptr, 16);
      select(i);
      draw(wanted);
      table[i].description = source.description;
      table[i].alias = source.alias;
    }
  }

  std::string copiedText() const {
    calc::CharacterSet set;
    for (std::size_t i = 0; i < 8; ++i) {
      set.kept.CharacterData[i] = table[i].data;
      set.shown.slotTable[i].description = table[i].description;
      set.shown.slotTable[i].constantAlias = table[i].alias;
    }
    return BuildLcdText({}, false, set);
  }
};

std::uint64_t turned(std::uint64_t picture, Qt::Key key) {
  std::uint64_t after = 0;
  for (int i = 0; i < 40; ++i) {
    const int row = key == Qt::Key_U ? 7 - i / 5 : i / 5;
    const int bit = key == Qt::Key_M ? 4 - i % 5 : i % 5;
    const int down = key == Qt::Key_Up ? 7 : key == Qt::Key_Down ? 1 : 0;
    const int left = key == Qt::Key_Right ? 4 : key == Qt::Key_Left ? 1 : 0;
    after |= (picture >> i & 1U) << ((row + down) % 8 * 5 + (bit + left) % 5);
  }
  return after;
}

// A user who draws at random, beside a model that keeps all that it was.
class RandomDrawing : public Drawing {
protected:
  using Operation = std::function<void(Model&)>;

  int below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

  template <typename Item>
  Item oneOf(std::initializer_list<Item> items) {
    return std::data(items)[below(static_cast<int>(items.size()))];
  }

  void act(const Operation& operation) {
    const Model before = model_;
    operation(model_);
    if (before != model_) note(before);
  }

  void note(const Model& before) {
    acts_.resize(done_++);
    acts_.emplace_back(before, model_);
  }

  void press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(screen(), key, modifiers);
  }

  void actOnce();
  void stroke();
  void paintByKeys();
  void turn();
  void typeName();
  void paste();
  void undoOrRedo();
  void selectSlot();
  void eraseOrReopen();
  void expectModel();

  Model model_;
  std::vector<std::pair<Model, Model>> acts_;
  std::size_t done_ = 0;
  Cell at_{0, 0};
  std::mt19937 random_{
      static_cast<unsigned>(20261123 + qEnvironmentVariableIntValue("TARNWICK_SEED"))};
};

void RandomDrawing::stroke() {
  std::vector<Cell> places{at_};
  std::vector<Cell> crossed{at_};
  for (int turns = below(4); turns > 0; --turns) {
    Cell place = places.back();
    int& along = below(2) == 0 ? place.row : place.column;
    for (const int end = below(12) - 2; along != end;) {
      along += along < end ? 1 : -1;
      if (place.exists()) crossed.push_back(place);
    }
    places.push_back(place);
  }
  drag(places);
  act([&](Model& model) {
    const bool on = !model.isOn(at_.pixel());
    for (const Cell cell : crossed) model.paint(cell.pixel(), on);
  });
}

// Space, and arrows while Shift is held.
void RandomDrawing::paintByKeys() {
  press(Qt::Key_Space, {});
  act([&](Model& model) { model.toggle(at_.pixel()); });
  QTest::keyPress(screen(), Qt::Key_Shift);
  act([&](Model& model) {
    for (int steps = below(4); steps > 0; --steps) {
      const auto key = oneOf({Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right});
      for (const bool down : {true, false})
        QTest::simulateEvent(screen(), down, key, Qt::ShiftModifier, {}, false);
      const Cell next{at_.row + (key == Qt::Key_Down) - (key == Qt::Key_Up),
                      at_.column + (key == Qt::Key_Right) - (key == Qt::Key_Left)};
      if (!next.exists()) continue;
      model.paint(next.pixel(), model.isOn(at_.pixel()));
      at_ = next;
    }
  });
  QTest::keyRelease(screen(), Qt::Key_Shift);
}

void RandomDrawing::turn() {
  const auto key = oneOf(
      {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_M, Qt::Key_U, Qt::Key_I});
  press(key, Qt::ControlModifier);
  act([&](Model& model) {
    if (key == Qt::Key_I) return model.toggleAll();
    model.draw(turned(model.picture(), key));
  });
}

void RandomDrawing::typeName() {
  const int slot = below(8);
  const bool alias = below(2) == 0;
  auto* field = control<QLineEdit>(of(alias ? "tConstant" : "tName", slot));
  if (!field->isEnabled()) return;
  field->setFocus();
  field->selectAll();
  const std::string name(static_cast<std::size_t>(1 + below(3)), static_cast<char>('a' + below(3)));
  type(name);
  act([&](Model& model) {
    auto& named = model.table[static_cast<std::size_t>(slot)];
    (alias ? named.alias : named.description) = name;
  });
}

// What was copied before, or numbers among words.
void RandomDrawing::paste() {
  using Number = std::tuple<const char*, int, const char*>;
  QString text;
  std::uint64_t wanted = 0;
  const int count = 5 + below(6);
  for (int i = 0; i < count; ++i) {
    const int value = below(3) == 0 ? 0 : below(256);
    if (i < 8) wanted |= static_cast<std::uint64_t>(value % 32) << i * 5;
    const auto [lead, base, tail] =
        oneOf<Number>({{"$", 16, ""}, {"%", 2, ""}, {"", 10, ""}, {"0", 16, "H"}});
    text += lead + QString::number(value, base) + tail;
    text += oneOf({", ", " and x1 ", "\n", "|", "\r\nA con 1\r\n", "\nDEFINE A 1\n"});
  }
  Operation operation = [&](Model& model) {
    if (count < 8) return;
    model.select(model.selected);
    model.draw(wanted);
  };
  if (below(3) == 0 && !acts_.empty()) {
    const Model& copied =
        acts_[static_cast<std::size_t>(below(static_cast<int>(acts_.size())))].first;
    text = ui::toQt(copied.copiedText());
    operation = [copied](Model& model) { model.paste(copied); };
  }
  QGuiApplication::clipboard()->setText(text);
  press(Qt::Key_V, Qt::ControlModifier);
  act(operation);
}

void RandomDrawing::undoOrRedo() {
  const auto [key, modifiers] = oneOf<std::pair<Qt::Key, Qt::KeyboardModifiers>>(
      {{Qt::Key_Z, Qt::ControlModifier},
       {Qt::Key_Y, Qt::ControlModifier},
       {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier}});
  press(key, modifiers);
  if (key == Qt::Key_Z && modifiers == Qt::ControlModifier) {
    if (done_ > 0) model_ = acts_[--done_].first;
  } else if (done_ < acts_.size()) {
    model_ = acts_[done_++].second;
  }
}

// To look at a slot is an act only where that changes what is copied.
void RandomDrawing::selectSlot() {
  const auto slot = static_cast<std::size_t>(below(8));
  click(of(oneOf({"oChar", "tChar"}), static_cast<int>(slot)));
  if (slot == model_.selected) return;
  const Model before = model_;
  model_.select(slot);
  if (before.copiedText() != model_.copiedText()) note(before);
}

void RandomDrawing::eraseOrReopen() {
  using Deletion = std::pair<const char*, void (Model::*)()>;
  const auto [button, operation] = oneOf<Deletion>({{"cClear", &Model::clear},
                                                    {"cDeleteChar", &Model::erase},
                                                    {"cDeletedAll", &Model::eraseAll},
                                                    {nullptr, &Model::open}});
  if (button != nullptr) {
    click(button);
    return act(operation);
  }
  if (below(10) > 0) return;
  current()->close();
  open("cCustomChar", "fCustomCharacter");
  model_.open();
  acts_.clear();
  done_ = 0;
}

void RandomDrawing::actOnce() {
  at_ = {below(8), below(5)};
  control(of("chk", at_.pixel()))->setFocus();
  using Self = RandomDrawing;
  const auto part =
      oneOf({&Self::stroke, &Self::stroke, &Self::stroke, &Self::paintByKeys, &Self::paintByKeys,
             &Self::turn, &Self::turn, &Self::turn, &Self::typeName, &Self::paste, &Self::paste,
             &Self::undoOrRedo, &Self::undoOrRedo, &Self::undoOrRedo, &Self::undoOrRedo,
             &Self::selectSlot, &Self::selectSlot, &Self::eraseOrReopen});
  (this->*part)();
}

void RandomDrawing::expectModel() {
  control<QAbstractButton>("cCopyClip")->click();
  EXPECT_EQ(ui::fromQt(QGuiApplication::clipboard()->text()), model_.copiedText());
  const QList cells = control("chk(4)")->parentWidget()->findChildren<QAbstractButton*>();
  for (int i = 0; i < 40; ++i)
    EXPECT_EQ(cells[i]->isChecked(), model_.isOn(Cell{i / 5, i % 5}.pixel())) << i;
  for (int i = 0; i < 8; ++i) {
    const auto at = static_cast<std::size_t>(i);
    const auto& [picture, data, description, alias] = model_.table[at];
    EXPECT_EQ(shown(of("lLine", i)), QString::asprintf("$%02X", model_.labels[at]).toStdString());
    EXPECT_EQ(shown(of("oChar", i)), at == model_.selected ? "on" : "off");
    EXPECT_EQ(shown(of("tChar", i)), picture == 0 ? "" : data.substr(1));
    for (const char* family : {"tName", "tConstant"})
      EXPECT_EQ(control(of(family, i))->isEnabled(), picture != 0);
  }
}

// TARNWICK_EVENTS asks for more acts, TARNWICK_SEED for other ones.
TEST_F(RandomDrawing, LeavesWhatTogglesAndDeletionsLeave) {
  const int asked = qEnvironmentVariableIntValue("TARNWICK_EVENTS");
  for (int i = 0; i < (asked > 0 ? asked : 2000) && !HasFailure(); ++i) {
    SCOPED_TRACE("act " + std::to_string(i));
    actOnce();
    expectModel();
  }
}

}  // namespace
}  // namespace tarnwick::tests
