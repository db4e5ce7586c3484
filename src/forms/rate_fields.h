#pragma once

#include "calc/baud_rate.h"
#include "ui/layout.h"
#include "ui/widgets.h"

#include <initializer_list>
#include <string_view>

// How the windows of the hardware serial ports show settings of the baud rate generator.
namespace tarnwick::forms {

// The result fields of one setting, in a table or in a best match.
struct RateFields {
  ui::ResultField* spbrgh = nullptr;  // none where the register value is shown as one number
  ui::ResultField* spbrg = nullptr;
  ui::ResultField* calcBaud = nullptr;
  ui::ResultField* err = nullptr;

  void show(const calc::RateTexts& texts) const;
};

// The design names of a setting's fields. Those of a byte pair are indexed: SPBRG 0, SPBRGH 1.
struct RateNames {
  std::string_view spbrg;
  std::string_view calcBaud;
  std::string_view err;
};

// A table with a row of fields for each BRGH; its grid has room for more below.
struct RateTable {
  QGroupBox* group;
  QGridLayout* grid;
  RateFields brgh0;
  RateFields brgh1;
};

[[nodiscard]] RateTable rateTable(QWidget* parent, std::string_view name, std::string_view caption,
                                  bool bytePairs, const RateNames& brgh0, const RateNames& brgh1);

// A field of a best match, its design name and its label.
struct MatchField {
  ui::ResultField** field;
  std::string_view name;
  std::string_view label;
};

// Makes the fields of a best match, of this weight, in a group of their own: error and rate on its
// left side, the registers on its right.
[[nodiscard]] QGroupBox* matchGroup(QWidget* parent, std::string_view name,
                                    std::string_view caption, ui::Weight weight,
                                    std::initializer_list<MatchField> rate,
                                    std::initializer_list<MatchField> registers);

}  // namespace tarnwick::forms
