#pragma once

#include "calc/comparator.h"
#include "ui/entry_field.h"
#include "ui/widgets.h"

namespace tarnwick::forms {

// Comparator reference: the 16 voltages that the reference makes of a supply.
class fComparator : public ui::Window {
public:
  fComparator();

private:
  void layOut();
  void connectEvents();
  void Form_Load();

  [[nodiscard]] calc::ComparatorInputs inputs() const;
  void show(calc::ComparatorShown shown);

  // Reads supply and range and rewrites both range labels and the column of voltages.
  void CalcVref();

  void tVdd_Validate();

  ui::EntryField* tVdd;
  ui::OptionGroup* oVrefRange;
  QLabel* tLabelLowRange;
  QLabel* tLabelHighRange;
  ui::ResultColumn* Text1;
  ui::ResultColumn* tVref;

  calc::ComparatorShown shown_;
  bool VddPointTyped = false;
};

}  // namespace tarnwick::forms
