#include "forms/baud_controls.h"

#include "ui/layout.h"

#include <array>
#include <utility>

namespace tarnwick::forms {
namespace {

constexpr std::array<std::string_view, 10> commonBauds{"300",  "600",   "1200",  "2400",  "4800",
                                                       "9600", "19200", "38400", "57600", "115200"};
constexpr int defaultBaud = 5;

}  // namespace

BaudControls::BaudControls(ui::Window* window, std::string_view fieldName,
                           const ui::EntryFieldTraits& traits, Choice choice,
                           std::function<void()> recalculate)
    : choice_(choice), recalculate_(std::move(recalculate)) {
  baudGroup = ui::group(window, "fBaudrate", "Baudrate");
  field = new ui::EntryField(baudGroup, fieldName, traits);
  cKBaud = ui::checkBox(baudGroup, "cKBaud", "KBaud");
  ui::row(baudGroup, {field, cKBaud});

  commonGroup = ui::group(window, "fCommonBaudrate", "Common baudrate");
  BaudDropList = new ui::SelectionList(commonGroup, "BaudDropList", commonBauds);
  ui::nameAfter(BaudDropList, "Common baudrate");
  ui::row(commonGroup, {BaudDropList});

  QObject::connect(BaudDropList, &ui::SelectionList::chosen, window,
                   [this] { BaudDropList_Click(); });
  QObject::connect(cKBaud, &QCheckBox::toggled, window, [this] { recalculate_(); });
}

void BaudControls::chooseDefault() {
  BaudDropList->choose(defaultBaud);
}

void BaudControls::BaudDropList_Click() {
  if (choice_ == Choice::UnitFirst) cKBaud->setChecked(false);
  field->setContents(BaudDropList->contents());
  cKBaud->setChecked(false);
  recalculate_();
}

}  // namespace tarnwick::forms
