#include "calc/lcd_text.h"
#include "support/look.h"
#include "support/program.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QMenu>
#include <QScrollArea>

#include <functional>
#include <random>

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

class LcdWindow : public Program {
protected:
  LcdWindow() { open("cCustomChar", "fCustomCharacter"); }

  QRect place(const std::string& name) {
    return {control(name)->mapTo(current(), QPoint(0, 0)), control(name)->size()};
  }
  QWindow* screen() { return current()->windowHandle(); }
  QPoint centre(Cell at) {
    if (auto* area = current()->findChild<QScrollArea*>(); area != nullptr)
      area->ensureWidgetVisible(control("chk(4)")->parentWidget());
    const int pitch = place("chk(3)").x() - place("chk(4)").x();
    return place("chk(4)").center() + QPoint(at.column, at.row) * pitch;
  }
  // The mouse is reported at these places alone, the last one when its button is released.
  void drag(const std::vector<Cell>& places) {
    QTest::mousePress(screen(), Qt::LeftButton, {}, centre(places.front()));
    for (std::size_t i = 1; i + 1 < places.size(); ++i)
      QTest::mouseMove(screen(), centre(places[i]));
    QTest::mouseRelease(screen(), Qt::LeftButton, {}, centre(places.back()));
  }
};

TEST_F(LcdWindow, StandsAtItsPlaces) {
  const QRect topLeft(place("chk(4)").topLeft(), QSize(29, 29));
  for (int pixel = 0; pixel < 40; ++pixel) {
    const auto [row, column] = std::pair(pixel / 5, 4 - pixel % 5);
    EXPECT_EQ(place(of("chk", pixel)), topLeft.translated(28 * column, 28 * row)) << pixel;
    auto* heard = QAccessible::queryAccessibleInterface(control(of("chk", pixel)));
    EXPECT_EQ(heard->text(QAccessible::Name),
              QString("Row %1, column %2").arg(row + 1).arg(column + 1));
  }
  EXPECT_EQ(place("Char7"), place("Char0").translated(0, 7 * 32));
  EXPECT_EQ(place("Char7").size(), QSize(19, 29));
  for (const QPoint edge : {QPoint(0, 0), QPoint(18, 5), QPoint(9, 28), QPoint(0, 28)})
    EXPECT_EQ(onScreen(control("Char0")).pixelColor(edge), QColor(Qt::black));
  EXPECT_EQ(place("Preview").size(), QSize(19, 29));
  for (const auto& [name, left] : {std::pair("tLeft", -41), {"tRight", 17}}) {
    EXPECT_EQ(place(name).topLeft(), place("Preview").topLeft() + QPoint(left, 3));
    const auto* text = control<QLineEdit>(name);
    EXPECT_EQ(text->font().pointSize(), 18);
    EXPECT_LE(text->fontMetrics().horizontalAdvance("WW") + 4, text->width());
    EXPECT_EQ(onScreen(control(name)).pixelColor(1, 1), QColor(0, 128, 0));
    EXPECT_FALSE(text->focusPolicy() & Qt::TabFocus);
  }
}

TEST_F(LcdWindow, TakesATypedPortAsItStands) {
  for (const char* typed : {"po", "portc", "four"}) {
    enter("PortData", typed);
    press(Qt::Key_Return);
    EXPECT_EQ(shown("PortData"), typed);
  }
  EXPECT_EQ(control<QComboBox>("PortData")->count(), 10);
}

TEST_F(LcdWindow, PaintsWhatAFastDragCrosses) {
  drag({{0, 0}, {7, 0}});
  EXPECT_EQ(shown("tChar(0)"), " $10, $10, $10, $10, $10, $10, $10, $10");
  // Out of the grid, and back into it from the other side
  drag({{1, 4}, {1, 9}, {6, 9}, {6, -3}, {3, -3}, {3, 2}});
  EXPECT_EQ(shown("tChar(0)"), " $10, $11, $10, $1C, $10, $10, $1F, $10");
  // What has the first cell's new state already keeps it, also on the way back
  drag({{7, 0}, {3, 4}, {7, 0}});
  QTest::mouseMove(screen(), centre({0, 2}));
  QTest::mouseDClick(screen(), Qt::LeftButton, {}, centre({2, 2}));
  QTest::mouseClick(screen(), Qt::MiddleButton, {}, centre({5, 4}));
  EXPECT_EQ(shown("tChar(0)"), " $10, $11, $10, $1C, $10, $10, $17, $00");
}

TEST_F(LcdWindow, PaintsAlongTheLineBetweenCells) {
  const QPoint onLine = centre({0, 1}) - QPoint(place("chk(3)").width() / 2, 0);
  QTest::mousePress(screen(), Qt::LeftButton, {}, onLine);
  QTest::mouseClick(screen(), Qt::MiddleButton, {}, onLine);
  QTest::mouseRelease(screen(), Qt::LeftButton, {}, onLine + centre({3, 0}) - centre({0, 0}));
  EXPECT_EQ(shown("tChar(0)"), " $08, $08, $08, $08, $00, $00, $00, $00");
}

TEST_F(LcdWindow, NamesItsKeysInTheMenuOfTheGrid) {
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

TEST_F(LcdWindow, SelectsTheSlotWhosePictureOrDataIsClicked) {
  click("Char6");
  press(Qt::Key_Up);
  EXPECT_EQ(shown("oChar(5)"), "on");
  click("tChar(7)");
  EXPECT_EQ(shown("oChar(7)"), "on");
  const auto ground = [&](const std::string& field) {
    return onScreen(current()).pixelColor(place(field).topLeft() - QPoint(0, 2));
  };
  EXPECT_EQ(ground("tName(5)"), ground("tName(6)"));
  EXPECT_NE(ground("tName(7)"), ground("tName(6)"));
  EXPECT_EQ(ui::fromQt(control("Char7")->toolTip()),
            "Character 7: code 7, CGRAM address $38, which the command byte $78 sets");
}

std::string labelled(unsigned row) {
  return ui::fromQt(QString::asprintf("$%02X", row));
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
class RandomDrawing : public LcdWindow {
protected:
  using Operation = std::function<void(Model&)>;

  int below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

  template <typename Item>
  Item oneOf(std::initializer_list<Item> items) {
    return std::data(items)[below(static_cast<int>(items.size()))];
  }

  // With `looks`, it is an act only where it changes what is copied.
  void act(const Operation& operation, bool looks = false) {
    const Model before = model_;
    operation(model_);
    if (looks ? before.copiedText() == model_.copiedText() : before == model_) return;
    acts_.resize(done_++);
    acts_.emplace_back(before, model_);
  }

  void stroke() {
    at_ = {below(8), below(5)};
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

  // Presses an arrow key and answers whether it leads to a cell.
  bool step(Qt::KeyboardModifiers held) {
    const auto key = oneOf({Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right});
    for (const bool down : {true, false})
      QTest::simulateEvent(screen(), down, key, held, {}, false);
    const Cell next{at_.row + (key == Qt::Key_Down) - (key == Qt::Key_Up),
                    at_.column + (key == Qt::Key_Right) - (key == Qt::Key_Left)};
    if (next.exists()) at_ = next;
    return next.exists();
  }

  void paintByKeys() {
    QTest::keyPress(screen(), Qt::Key_Shift);
    act([&](Model& model) {
      for (int steps = below(4); steps > 0; --steps) {
        const bool on = model.isOn(at_.pixel());
        if (step(Qt::ShiftModifier)) model.paint(at_.pixel(), on);
      }
    });
    QTest::keyRelease(screen(), Qt::Key_Shift);
  }

  void pressKey() {
    const auto key = oneOf({Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_M,
                            Qt::Key_U, Qt::Key_I, Qt::Key_Space});
    press(key == Qt::Key_Space ? key : Qt::CTRL | key);
    act([&](Model& model) {
      if (key == Qt::Key_Space) return model.toggle(at_.pixel());
      key == Qt::Key_I ? model.toggleAll() : model.draw(turned(model.picture(), key));
    });
  }

  void typeName() {
    const int slot = below(8);
    const bool alias = below(2) == 0;
    const std::string field = of(alias ? "tConstant" : "tName", slot);
    const std::string name = oneOf({"a", "b c", "'CON 1"});
    if (!control(field)->isEnabled()) return;
    enter(field, name);
    acts_.resize(done_);  // also by what in the end is the same name
    act([&](Model& model) {
      auto& named = model.table[static_cast<std::size_t>(slot)];
      (alias ? named.alias : named.description) = name;
    });
  }

  // What was copied before, or numbers among words.
  void paste() {
    if (!acts_.empty() && below(3) == 0) {
      const Model copied = acts_[random_() % acts_.size()].first;
      return paste(ui::toQt(copied.copiedText()), [&](Model& model) { model.paste(copied); });
    }
    QString text;
    std::uint64_t wanted = 0;
    const int count = 5 + below(6);
    for (int i = 0; i < count; ++i) {
      const int value = below(3) == 0 ? 0 : below(256);
      if (i < 8) wanted |= static_cast<std::uint64_t>(value % 32) << i * 5;
      const QString hex = QString::number(value, 16);
      text += oneOf(
          {"$" + hex, "0" + hex + "H", "0b" + QString::number(value, 2), QString::number(value)});
      text += oneOf({", ", " and x1 ", "\n", "|", "\r\nA con 1\r\n", "\nDEFINE A 1\n"});
    }
    paste(text, [&](Model& model) {
      if (count < 8) return;
      model.select(model.selected);
      model.draw(wanted);
    });
  }

  void paste(const QString& text, const Operation& operation) {
    QGuiApplication::clipboard()->setText(text);
    press(Qt::CTRL | Qt::Key_V);
    act(operation);
  }

  void undoOrRedo() {
    constexpr QKeyCombination undo = Qt::CTRL | Qt::Key_Z;
    const auto keys = oneOf<QKeyCombination>(
        {undo, undo, undo, Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z});
    press(keys);
    if (keys != undo) {
      if (done_ < acts_.size()) model_ = acts_[done_++].second;
    } else if (done_ > 0) {
      model_ = acts_[--done_].first;
    }
  }

  void selectSlot() {
    const int slot = below(8);
    click(of(oneOf({"oChar", "tChar"}), slot));
    const auto selected = static_cast<std::size_t>(slot);
    if (selected == model_.selected) return;
    act([&](Model& model) { model.select(selected); }, true);
  }

  void erase() {
    using Deletion = std::pair<const char*, void (Model::*)()>;
    const auto [button, operation] = oneOf<Deletion>({{"cClear", &Model::clear},
                                                      {"cDeleteChar", &Model::erase},
                                                      {"cDeletedAll", &Model::eraseAll}});
    click(button);
    act(operation);
  }

  void reopen() {
    if (below(10) > 0) return;
    current()->close();
    open("cCustomChar", "fCustomCharacter");
    model_.open();
    acts_.clear();
    done_ = 0;
  }

  void actOnce() {
    control(of("chk", at_.pixel()))->setFocus();
    for (int steps = below(4); steps > 0; --steps) step({});
    const int dice = below(40);
    if (dice < 8) return stroke();
    if (dice < 12) return paintByKeys(), paintByKeys();
    if (dice < 18) return pressKey();
    if (dice < 21) return typeName();
    if (dice < 25) return paste();
    if (dice < 33) return undoOrRedo();
    if (dice < 37) return selectSlot();
    dice < 39 ? (erase(), erase()) : reopen();
  }

  void expectModel() {
    control<QAbstractButton>("cCopyClip")->click();
    EXPECT_EQ(ui::fromQt(QGuiApplication::clipboard()->text()), model_.copiedText());
    EXPECT_EQ(shown(of("oChar", static_cast<int>(model_.selected))), "on");
    const QList cells = control("chk(4)")->parentWidget()->findChildren<QAbstractButton*>();
    for (int i = 0; i < 40; ++i)
      EXPECT_EQ(cells[i]->isChecked(), model_.isOn(Cell{i / 5, i % 5}.pixel())) << i;
    for (int i = 0; i < 8; ++i) {
      const auto at = static_cast<std::size_t>(i);
      const Model::Slot& slot = model_.table[at];
      EXPECT_EQ(shown(of("lLine", i)), labelled(model_.labels[at]));
      EXPECT_EQ(shown(of("tChar", i)), slot.picture == 0 ? "" : slot.data.substr(1));
      EXPECT_EQ(control(of("tConstant", i))->isEnabled(), slot.picture != 0);
    }
  }

  Model model_;
  std::vector<std::pair<Model, Model>> acts_;
  std::size_t done_ = 0;
  Cell at_{0, 0};
  std::mt19937 random_{
      static_cast<unsigned>(20261123 + qEnvironmentVariableIntValue("TARNWICK_SEED"))};
};

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
