#pragma once

#include "calc/character_set.h"
#include "calc/lcd_text.h"
#include "ui/entry_field.h"
#include "ui/lcd_panel.h"
#include "ui/pixels.h"
#include "ui/widgets.h"

#include <array>

namespace tarnwick::forms {

// LCD custom character generator: draws the eight characters of an LCD's character generator and
// writes the PBP text that loads them.
class fCustomCharacter : public ui::Window {
public:
  // The character set outlives the window: part of it is found again when the window is reopened.
  explicit fCustomCharacter(calc::CharacterSet& characters);

private:
  // The port and the bit that a line of the LCD is wired to.
  struct Wire {
    ui::EditableList* port;
    ui::EditableList* bit;
  };
  struct SlotRow {
    ui::PixelPicture* picture;
    ui::ResultField* tChar;
    QLineEdit* tName;
    QLineEdit* tConstant;
  };

  QWidget* layOutSettings();
  QWidget* layOutSlots();
  QWidget* layOutLcdText();
  QWidget* layOutPixels();
  QWidget* layOutGridButtons();
  QWidget* layOutResults();
  void layOut();
  void connectSettings();
  void connectEditor();
  void Form_Load();
  void LoadSettings();

  void Port_Change(const Wire& wire);
  void Bit_LostFocus(ui::EditableList& bit);
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

  // Takes over what an operation made of the character set, and shows it.
  void edit(calc::CharacterSet characters);
  void showCharacters();
  [[nodiscard]] calc::LcdSettings settings() const;

  Wire data;
  Wire registerSelect;
  Wire enable;
  Wire readWrite;
  ui::EditableList* Bits;
  ui::EditableList* Lines;
  ui::EntryField* tCommandUS;
  ui::EntryField* tDataUS;
  ui::OptionGroup* oChar;
  std::array<SlotRow, calc::slotCount> slotRows;
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
};

}  // namespace tarnwick::forms
