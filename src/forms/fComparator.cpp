#include "forms/fComparator.h"

#include "common/product.h"
#include "forms/descriptions.h"
#include "ui/layout.h"
#include "ui/result_look.h"
#include "ui/text.h"

#include <utility>

namespace tarnwick::forms {
namespace {

constexpr int lowRange = static_cast<int>(calc::VrefRange::Low);  // oVrefRange indices
constexpr int highRange = static_cast<int>(calc::VrefRange::High);
constexpr int columnLines = 16;

// A bold label that holds the span of a range and never widens the window.
QLabel* spanLabel(QWidget* parent, std::string_view name) {
  QLabel* label = ui::label(parent, name, "");
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  label->setMinimumWidth(
      label->fontMetrics().horizontalAdvance(QStringLiteral("-00.000 - -00.000 Volt")));
  label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  return label;
}

}  // namespace

fComparator::fComparator() : Window("fComparator", "Comparator Vref") {
  layOut();
  describe(*this);
  connectEvents();
  Form_Load();
}

void fComparator::layOut() {
  auto* fVdd = ui::group(this, "fVdd", "Vdd");
  tVdd = new ui::EntryField(fVdd, "tVdd",
                            {.keys = common::decimalKey,
                             .pointTyped = &VddPointTyped,
                             .clearsPointOnEntering = true,
                             .validatesOnFocusLost = true});
  ui::nameAfter(tVdd, "Vdd (Volt)");
  ui::row(fVdd, {tVdd, ui::label(fVdd, "tLabelVdd", "Volt")});

  auto* fVrefRange = ui::group(this, "fVrefRange", "Vref range");
  oVrefRange = new ui::OptionGroup(fVrefRange, "oVrefRange");
  tLabelLowRange = spanLabel(fVrefRange, "tLabelLowRange");
  tLabelHighRange = spanLabel(fVrefRange, "tLabelHighRange");
  auto* ranges = ui::grid(fVrefRange);
  ranges->addWidget(oVrefRange->add(lowRange, "Low  (CVRR=0)"), 0, 0);
  ranges->addWidget(tLabelLowRange, 1, 0);
  ranges->addWidget(oVrefRange->add(highRange, "High (CVRR=1)"), 2, 0);
  ranges->addWidget(tLabelHighRange, 3, 0);

  auto* fResults = ui::group(this, "fResults", "Results");
  Text1 = new ui::ResultColumn(fResults, "Text1", "000000000", columnLines);
  tVref = new ui::ResultColumn(fResults, "tVref", "-0000.000", columnLines);
  ui::nameAfter(Text1, "CVR<3:0>");
  ui::nameAfter(tVref, "Vref (Volt)");
  auto* results = ui::grid(fResults);
  results->addWidget(ui::label(fResults, "tlabel(0)", "CVR<3:0>"), 0, 0, Qt::AlignRight);
  results->addWidget(ui::label(fResults, "tlabel(1)", "Vref (Volt)"), 0, 1, Qt::AlignRight);
  results->addWidget(Text1, 1, 0);
  results->addWidget(tVref, 1, 1);

  auto* window = ui::grid(this);
  window->addWidget(fVdd, 0, 0);
  window->addWidget(fVrefRange, 1, 0);
  window->addWidget(fResults, 0, 1, 3, 1);
  window->setRowStretch(2, 1);
  ui::dimWhileEdited(tVdd, tVref, {tLabelLowRange, tLabelHighRange});
  ui::fixToContent(this);
}

void fComparator::connectEvents() {
  connect(tVdd, &ui::EntryField::validate, this, &fComparator::tVdd_Validate);
  connect(oVrefRange, &ui::OptionGroup::chosen, this, &fComparator::CalcVref);
}

void fComparator::Form_Load() {
  Text1->setContents(calc::cvrColumn());
  tVdd->setContents("5");
  oVrefRange->select(lowRange);
  CalcVref();
}

calc::ComparatorInputs fComparator::inputs() const {
  return {.vdd = tVdd->number(), .range = static_cast<calc::VrefRange>(oVrefRange->selected())};
}

void fComparator::show(calc::ComparatorShown shown) {
  shown_ = std::move(shown);
  ui::showOutOfDate({tLabelLowRange, tLabelHighRange, tVref}, this, shown_.invalidVdd);
  tLabelLowRange->setText(ui::toQt(shown_.lowRange));
  tLabelHighRange->setText(ui::toQt(shown_.highRange));
  tVref->setContents(shown_.vref);
}

void fComparator::CalcVref() {
  show(calc::showComparator(inputs()));
}

void fComparator::tVdd_Validate() {
  show(calc::next(std::move(shown_), inputs()));
  if (!shown_.invalidVdd) return;
  showMessage(QMessageBox::Critical, common::product::title, "Invalid Vdd");
  VddPointTyped = false;
  tVdd->setFocus();
}

}  // namespace tarnwick::forms
