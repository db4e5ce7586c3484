#include "ui/layout.h"

#include "ui/text.h"

#include <QHBoxLayout>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace tarnwick::ui {
namespace {

constexpr int spacing = 6;  // between controls, and between them and the edge around them

std::string groupsAround(const QWidget& control) {
  std::string captions;
  for (const QWidget* around = control.parentWidget(); around; around = around->parentWidget())
    if (const auto* group = qobject_cast<const QGroupBox*>(around))
      captions.insert(0, fromQt(group->title()) + ", ");
  return captions;
}

void tellApart(const QWidget& window) {
  std::map<QString, std::vector<QWidget*>> byName;
  for (auto* control : window.findChildren<QWidget*>()) {
    const bool isPart = qobject_cast<QComboBox*>(control->parentWidget()) != nullptr;
    if (control->focusPolicy() != Qt::NoFocus && !isPart)
      byName[control->accessibleName()].push_back(control);
  }
  for (const auto& [name, controls] : byName)
    for (QWidget* control : controls)
      if (controls.size() > 1) nameAfter(control, groupsAround(*control) + fromQt(name));
}

// The part of a window's way of the Tab key that a control belongs to.
int tabPart(const QWidget* control) {
  if (qobject_cast<const QPushButton*>(control) != nullptr) return 1;
  const bool result = qobject_cast<const ResultField*>(control) != nullptr ||
                      qobject_cast<const ResultColumn*>(control) != nullptr;
  return result ? 2 : 0;
}

void orderTabStops(QWidget& window) {
  QWidgetList controls;
  for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain())
    if (at->focusPolicy() != Qt::NoFocus && at->focusProxy() == nullptr) controls << at;
  std::ranges::stable_sort(controls, {}, tabPart);
  for (int i = 1; i < controls.size(); ++i) QWidget::setTabOrder(controls[i - 1], controls[i]);
}

}  // namespace

QGridLayout* grid(QWidget* parent) {
  auto* layout = new QGridLayout(parent);
  layout->setContentsMargins(spacing, spacing, spacing, spacing);
  layout->setSpacing(spacing);
  return layout;
}

void row(QWidget* parent, std::initializer_list<QWidget*> controls) {
  auto* layout = new QHBoxLayout(parent);
  layout->setContentsMargins(spacing, spacing, spacing, spacing);
  layout->setSpacing(spacing);
  for (QWidget* control : controls) layout->addWidget(control);
}

void labelledRow(QGridLayout* grid, std::string_view labelName, std::string_view labelText,
                 QWidget* field) {
  auto* text = label(grid->parentWidget(), labelName, labelText);
  text->setBuddy(field);
  nameAfter(field, labelText);
  const int row = grid->rowCount();
  grid->addWidget(text, row, 0, Qt::AlignRight | Qt::AlignVCenter);
  grid->addWidget(field, row, 1);
}

ResultColumn* headedColumn(QGridLayout* grid, std::string_view name, std::string_view heading,
                           std::string_view widest, int lines) {
  auto* column = new ResultColumn(grid->parentWidget(), name, widest, lines);
  auto* text = label(grid->parentWidget(), "Heading_" + std::string(name), heading);
  text->setBuddy(column);
  nameAfter(column, heading);
  const int at = grid->columnCount();
  column->setFixedWidth(std::max(column->minimumWidth(), text->sizeHint().width()));
  grid->addWidget(text, 0, at, Qt::AlignRight | Qt::AlignBottom);
  grid->addWidget(column, 1, at);
  return column;
}

void packTopLeft(QGridLayout* grid) {
  grid->setRowStretch(grid->rowCount(), 1);
  grid->setColumnStretch(grid->columnCount(), 1);
}

void fixToContent(QWidget* window) {
  tellApart(*window);
  orderTabStops(*window);
  window->layout()->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace tarnwick::ui
