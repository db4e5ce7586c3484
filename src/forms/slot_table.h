#pragma once

#include "calc/character_set.h"
#include "ui/marked_rows.h"
#include "ui/pixels.h"
#include "ui/widgets.h"

#include <array>

namespace tarnwick::forms {

// The table of the eight characters, a row for each; that of the selected one is marked. A click on
// a picture or on data selects its character.
class SlotTable : public ui::MarkedRows {
  Q_OBJECT

public:
  explicit SlotTable(QWidget* parent);

  // Adds to the controls' descriptions which character they belong to.
  void describeCharacters();
  void showCharacters(const calc::CharacterSet& characters);

  struct Row {
    ui::PixelPicture* picture;
    ui::ResultField* tChar;
    QLineEdit* tName;
    QLineEdit* tConstant;
  };
  ui::OptionGroup* oChar;
  std::array<Row, calc::slotCount> rows;

private:
  void layOut();
  void choose(int row);
};

}  // namespace tarnwick::forms
