#pragma once

#include "calc/lcd_text.h"
#include "ui/entry_field.h"
#include "ui/widgets.h"

namespace tarnwick::forms {

// The group in which the user says how the LCD is wired to the PIC. The bit of a line can be
// entered while the line has a port; no text is checked.
class LcdSettingsGroup {
public:
  explicit LcdSettingsGroup(ui::Window* window);

  // Shows what the fields hold when the window opens.
  void load();
  // The fields' texts, for the set-up lines.
  [[nodiscard]] calc::LcdSettings contents() const;

  QGroupBox* group;

private:
  // The port and the bit that a line of the LCD is wired to.
  struct Wire {
    ui::EditableList* port;
    ui::EditableList* bit;
  };

  void layOut();
  void connectEvents();
  void Port_Change(const Wire& wire);
  void Bit_LostFocus(ui::EditableList& bit);

  Wire data;
  Wire registerSelect;
  Wire enable;
  Wire readWrite;
  ui::EditableList* Bits;
  ui::EditableList* Lines;
  ui::EntryField* tCommandUS;
  ui::EntryField* tDataUS;
};

}  // namespace tarnwick::forms
