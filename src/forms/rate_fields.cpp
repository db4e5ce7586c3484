#include "forms/rate_fields.h"

#include <string>

namespace tarnwick::forms {
namespace {

constexpr std::string_view widestSpbrg = "00000";
constexpr std::string_view widestBaud = "0000.000 K";
constexpr std::string_view widestError = "-000000.0%";

// Adds fields and captions to a table column by column.
class RowBuilder {
public:
  RowBuilder(const RateTable& table, int row, std::string_view caption)
      : table_(table), row_(row), caption_(caption) {
    table_.grid->addWidget(ui::label(table_.group, "l" + std::string(caption), caption), row_, 0);
  }

  ui::ResultField* add(std::string_view name, std::string_view column, std::string_view widest) {
    auto* field = new ui::ResultField(table_.group, name, widest);
    ui::nameAfter(field, std::string(caption_) + ", " + std::string(column));
    table_.grid->addWidget(field, row_, ++column_);
    if (row_ == 1) addHeading(column);
    return field;
  }

private:
  void addHeading(std::string_view column) {
    auto* heading = ui::label(table_.group, "l" + std::string(column), column);
    table_.grid->addWidget(heading, 0, column_, Qt::AlignRight);
  }

  const RateTable& table_;
  int row_;
  std::string_view caption_;
  int column_ = 0;
};

// Adds labelled fields, one below the other, at the right end of the grid.
void addSide(QGroupBox* group, QGridLayout* sides, ui::Weight weight, std::string_view widest,
             std::initializer_list<MatchField> fields) {
  auto* side = ui::grid(nullptr);
  side->setContentsMargins(0, 0, 0, 0);
  sides->addLayout(side, 0, sides->columnCount(), Qt::AlignTop);
  for (const MatchField& match : fields) {
    *match.field = new ui::ResultField(group, match.name, widest, weight);
    ui::labelledRow(side, "l" + std::string(match.name), match.label, *match.field);
  }
}

RateFields addRow(const RateTable& table, int row, std::string_view caption, bool bytePair,
                  const RateNames& names) {
  RowBuilder builder(table, row, caption);
  RateFields fields;
  if (bytePair) fields.spbrgh = builder.add(ui::indexed(names.spbrg, 1), "SPBRGH", widestSpbrg);
  fields.spbrg = builder.add(bytePair ? ui::indexed(names.spbrg, 0) : std::string(names.spbrg),
                             "SPBRG", widestSpbrg);
  fields.calcBaud = builder.add(names.calcBaud, "Calc baud", widestBaud);
  fields.err = builder.add(names.err, "Error %", widestError);
  return fields;
}

}  // namespace

void RateFields::show(const calc::RateTexts& texts) const {
  if (spbrgh != nullptr) spbrgh->setContents(texts.spbrgh);
  spbrg->setContents(texts.spbrg);
  calcBaud->setContents(texts.calcBaud);
  err->setContents(texts.err);
}

RateTable rateTable(QWidget* parent, std::string_view name, std::string_view caption,
                    bool bytePairs, const RateNames& brgh0, const RateNames& brgh1) {
  RateTable table{};
  table.group = ui::group(parent, name, caption);
  table.grid = ui::grid(table.group);
  table.brgh0 = addRow(table, 1, "BRGH = 0", bytePairs, brgh0);
  table.brgh1 = addRow(table, 2, "BRGH = 1", bytePairs, brgh1);
  return table;
}

QGroupBox* matchGroup(QWidget* parent, std::string_view name, std::string_view caption,
                      ui::Weight weight, std::initializer_list<MatchField> rate,
                      std::initializer_list<MatchField> registers) {
  auto* group = ui::group(parent, name, caption);
  auto* sides = ui::grid(group);
  sides->setHorizontalSpacing(2 * sides->horizontalSpacing());
  addSide(group, sides, weight, widestError, rate);
  addSide(group, sides, weight, widestSpbrg, registers);
  ui::packTopLeft(sides);
  return group;
}

}  // namespace tarnwick::forms
