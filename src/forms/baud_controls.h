#pragma once

#include "ui/entry_field.h"
#include "ui/widgets.h"

#include <functional>
#include <string_view>

namespace tarnwick::forms {

// The wanted baud rate as the windows of the serial calculators ask for it: a field, its unit, and
// a list of common rates that fills the field. Choosing a rate takes it as Bd; both a choice and a
// change of the unit recalculate, so a choice that changes the unit does so twice. Validating the
// field is the window's own.
class BaudControls {
public:
  // What a choice changes first. Each change recalculates, and some results outlast the next one.
  enum class Choice { TextFirst, UnitFirst };

  BaudControls(ui::Window* window, std::string_view fieldName, const ui::EntryFieldTraits& traits,
               Choice choice, std::function<void()> recalculate);
  BaudControls(const BaudControls&) = delete;
  BaudControls& operator=(const BaudControls&) = delete;

  // Chooses 9600 Bd from the list.
  void chooseDefault();

  QGroupBox* baudGroup;
  ui::EntryField* field;
  QCheckBox* cKBaud;
  QGroupBox* commonGroup;
  ui::SelectionList* BaudDropList;

private:
  void BaudDropList_Click();

  Choice choice_;
  std::function<void()> recalculate_;
};

}  // namespace tarnwick::forms
