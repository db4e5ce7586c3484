#pragma once

#include "calc/character_history.h"
#include "calc/character_move.h"
#include "calc/character_set.h"
#include "forms/lcd_settings_group.h"
#include "forms/slot_table.h"
#include "ui/lcd_panel.h"
#include "ui/pixels.h"
#include "ui/undo_keys.h"
#include "ui/widgets.h"

#include <array>

namespace tarnwick::forms {

// LCD custom character generator: draws the eight characters of an LCD's character generator and
// writes the PBP text that loads them, or reads it back. Every act on the characters can be undone
// while the window is open.
class fCustomCharacter : public ui::Window {
public:
  // The character set outlives the window: part of it is found again when the window is reopened.
  explicit fCustomCharacter(calc::CharacterSet& characters);

private:
  QWidget* layOutLcdText();
  QWidget* layOutPixels();
  QWidget* layOutGridButtons();
  QWidget* layOutResults();
  void layOut();
  void connectEditor();
  void addCommands();
  void Form_Load();

  void oChar_Click(int slot);
  void tName_Change(std::size_t slot);
  void tConstant_Change(std::size_t slot);
  void uTleft_Change();
  void uTright_Change();
  void chk_Click(int pixel);
  void cInvertAll_Click();
  void cClear_Click();
  void cDeleteChar_Click();
  void cDeletedAll_Click();
  void cCopyClip_Click();

  void moveCharacter(calc::CharacterMove move);
  void copyCharacter();
  void pasteCharacters();

  // Changes the characters, as part of what the actor does at one go (CharacterHistory::note).
  template <typename Operation>
  void change(const void* actor, const Operation& operation);
  // Does a whole act on the characters and shows what they are then.
  template <typename Operation>
  void act(const Operation& operation);
  void showCharacters();

  LcdSettingsGroup settings_;
  SlotTable* slotTable;
  ui::LcdPanel* Image2;
  QLineEdit* uTleft;
  QLineEdit* uTright;
  ui::PixelGrid* chk;
  std::array<QLabel*, common::matrixRows> lLine;
  QPushButton* cInvertAll;
  QPushButton* cClear;
  QPushButton* cDeleteChar;
  QPushButton* cDeletedAll;
  QPushButton* cCopyClip;
  QCheckBox* cInclude;

  calc::CharacterSet& characters_;
  calc::CharacterHistory history_;
};

}  // namespace tarnwick::forms
