#include "forms/fCustomCharacter.h"

#include "calc/character_text.h"
#include "calc/lcd_text.h"
#include "common/number_text.h"
#include "forms/descriptions.h"
#include "ui/desktop.h"
#include "ui/keys.h"
#include "ui/layout.h"
#include "ui/text.h"

#include <string>
#include <utility>

namespace tarnwick::forms {

fCustomCharacter::fCustomCharacter(calc::CharacterSet& characters)
    : Window("fCustomCharacter", "LCD Custom character generator"),
      settings_(this),
      characters_(characters) {
  layOut();
  describe(*this);
  slotTable->describeCharacters();
  connectEditor();
  addCommands();
  Form_Load();
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
  ui::row(group, {cInvertAll, cClear});
  return group;
}

// What deletes stands at one end, what copies at the other.
QWidget* fCustomCharacter::layOutResults() {
  auto* group = ui::group(this, "fResults", "Results");
  cDeleteChar = ui::button(group, "cDeleteChar", "Delete selected character");
  cDeletedAll = ui::button(group, "cDeletedAll", "Delete all");
  cInclude = ui::checkBox(group, "cInclude", "Include LCD Defines");
  cCopyClip = ui::button(group, "cCopyClip", "Copy results to clipboard");
  ui::clickBy(*cCopyClip, Qt::ALT | Qt::Key_C);
  auto* results = ui::grid(group);
  results->addWidget(cDeleteChar, 0, 0);
  results->addWidget(cDeletedAll, 1, 0);
  results->setRowStretch(2, 1);
  results->addWidget(cInclude, 3, 0);
  results->addWidget(cCopyClip, 4, 0);
  return group;
}

void fCustomCharacter::layOut() {
  auto* window = ui::grid(this);
  window->addWidget(settings_.group, 0, 0, 3, 1);
  window->addWidget(layOutResults(), 0, 1, 3, 1);
  slotTable = new SlotTable(this);
  window->addWidget(slotTable, 3, 0, 2, 2, Qt::AlignTop);
  Image2 = new ui::LcdPanel(this);
  window->addWidget(ui::label(this, "lPreview", "Preview"), 0, 2,
                    Qt::AlignHCenter | Qt::AlignBottom);
  window->addWidget(Image2, 1, 2, Qt::AlignHCenter);
  window->addWidget(layOutLcdText(), 2, 2);
  window->addWidget(layOutPixels(), 3, 2, Qt::AlignCenter);
  window->addWidget(layOutGridButtons(), 4, 2);
  window->setRowStretch(0, 1);
  window->setColumnStretch(1, 1);
  ui::fixToContent(this);
}

void fCustomCharacter::connectEditor() {
  using Self = fCustomCharacter;
  connect(slotTable->oChar, &ui::OptionGroup::chosen, this, &Self::oChar_Click);
  for (std::size_t i = 0; i < calc::slotCount; ++i) {
    const auto& [picture, tChar, tName, tConstant] = slotTable->rows[i];
    connect(tName, &QLineEdit::textChanged, this, [this, i] { tName_Change(i); });
    connect(tConstant, &QLineEdit::textChanged, this, [this, i] { tConstant_Change(i); });
    for (const QLineEdit* field : {tName, tConstant})
      connect(field, &QLineEdit::editingFinished, this, [this] { history_.close(); });
  }
  connect(uTleft, &QLineEdit::textChanged, this, &Self::uTleft_Change);
  connect(uTright, &QLineEdit::textChanged, this, &Self::uTright_Change);
  connect(chk, &ui::PixelGrid::strokeBegan, this, [this] { history_.close(); });
  connect(chk, &ui::PixelGrid::clicked, this, &Self::chk_Click);
  connect(cInvertAll, &QPushButton::clicked, this, &Self::cInvertAll_Click);
  connect(cClear, &QPushButton::clicked, this, &Self::cClear_Click);
  connect(cDeleteChar, &QPushButton::clicked, this, &Self::cDeleteChar_Click);
  connect(cDeletedAll, &QPushButton::clicked, this, &Self::cDeletedAll_Click);
  connect(cCopyClip, &QPushButton::clicked, this, &Self::cCopyClip_Click);
}

void fCustomCharacter::addCommands() {
  using Move = calc::CharacterMove;
  const auto add = [this](const char* caption, const QKeySequence& keys, auto run) {
    QAction* command = chk->addAction(QLatin1String(caption), keys, this, run);
    command->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    command->setShortcutVisibleInContextMenu(true);
    return command;
  };
  const auto addMove = [&](const char* caption, const QKeySequence& keys, Move move) {
    add(caption, keys, [this, move] { moveCharacter(move); });
  };
  const auto addLine = [this] {
    auto* line = new QAction(chk);
    line->setSeparator(true);
    chk->addAction(line);
  };
  addMove("Shift left", Qt::CTRL | Qt::Key_Left, Move::Left);
  addMove("Shift right", Qt::CTRL | Qt::Key_Right, Move::Right);
  addMove("Shift up", Qt::CTRL | Qt::Key_Up, Move::Up);
  addMove("Shift down", Qt::CTRL | Qt::Key_Down, Move::Down);
  addLine();
  addMove("Mirror", Qt::CTRL | Qt::Key_M, Move::Mirror);
  addMove("Turn upside down", Qt::CTRL | Qt::Key_U, Move::UpsideDown);
  add("Invert", Qt::CTRL | Qt::Key_I, [this] { cInvertAll_Click(); });
  addLine();
  QAction* copy = add("Copy the character", Qt::CTRL | Qt::Key_C, [this] { copyCharacter(); });
  QAction* paste = add("Paste", Qt::CTRL | Qt::Key_V, [this] { pasteCharacters(); });
  for (int i = 0; i < static_cast<int>(calc::slotCount); ++i)
    slotTable->oChar->button(i)->addActions({copy, paste});
  addLine();
  QWidgetList names;
  for (const auto& row : slotTable->rows) names << row.tName << row.tConstant;
  auto* undoKeys = new ui::UndoKeys(this, names);
  chk->addActions(undoKeys->commands());
  connect(undoKeys, &ui::UndoKeys::undoAsked, this, [this] {
    history_.undo(characters_);
    showCharacters();
  });
  connect(undoKeys, &ui::UndoKeys::redoAsked, this, [this] {
    history_.redo(characters_);
    showCharacters();
  });
}

void fCustomCharacter::Form_Load() {
  settings_.load();
  calc::OpenEditor(characters_);
  showCharacters();
  uTleft->setText(ui::toQt(characters_.shown.leadText));
  uTright->setText(ui::toQt(characters_.shown.followText));
}

template <typename Operation>
void fCustomCharacter::change(const void* actor, const Operation& operation) {
  const calc::CharacterSet before = characters_;
  operation(characters_);
  history_.note(before, characters_, actor);
}

template <typename Operation>
void fCustomCharacter::act(const Operation& operation) {
  change(nullptr, operation);
  showCharacters();
}

// To look at another slot is no act, unless it drops data that only the copied text showed.
void fCustomCharacter::oChar_Click(int slot) {
  if (slot == characters_.kept.SelectedSlot) return;
  const calc::CharacterSet before = characters_;
  calc::SelectSlot(characters_, static_cast<std::size_t>(slot));
  history_.close();
  if (!sameCharacters(before, characters_)) history_.note(before, characters_);
  showCharacters();
}

void fCustomCharacter::tName_Change(std::size_t slot) {
  const QLineEdit* field = slotTable->rows.at(slot).tName;
  change(field, [&](calc::CharacterSet& set) {
    set.shown.slotTable.at(slot).description = ui::fromQt(field->text());
  });
}

void fCustomCharacter::tConstant_Change(std::size_t slot) {
  const QLineEdit* field = slotTable->rows.at(slot).tConstant;
  change(field, [&](calc::CharacterSet& set) {
    set.shown.slotTable.at(slot).constantAlias = ui::fromQt(field->text());
  });
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
  change(chk, [pixel](calc::CharacterSet& set) {
    calc::TogglePixel(set, static_cast<std::size_t>(pixel));
  });
  showCharacters();
}

void fCustomCharacter::cInvertAll_Click() {
  act(calc::InvertAll);
}

void fCustomCharacter::cClear_Click() {
  act(calc::Clear);
}

void fCustomCharacter::cDeleteChar_Click() {
  act(calc::DeleteSelectedCharacter);
}

void fCustomCharacter::cDeletedAll_Click() {
  act(calc::DeleteAll);
}

void fCustomCharacter::cCopyClip_Click() {
  ui::copyToClipboard(calc::BuildLcdText(settings_.contents(), cInclude->isChecked(), characters_));
}

void fCustomCharacter::moveCharacter(calc::CharacterMove move) {
  act([move](calc::CharacterSet& set) {
    calc::drawCharacter(set, calc::moved(set.kept.Pixels, move));
  });
}

void fCustomCharacter::copyCharacter() {
  ui::copyToClipboard(calc::characterBytes(characters_));
}

void fCustomCharacter::pasteCharacters() {
  act([text = ui::clipboardText()](calc::CharacterSet& set) { calc::pasteCharacters(set, text); });
}

void fCustomCharacter::showCharacters() {
  const auto& [kept, shown] = std::as_const(characters_);
  slotTable->showCharacters(characters_);
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
