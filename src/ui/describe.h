#pragma once

#include <QWidget>

#include <span>
#include <string_view>

namespace tarnwick::ui {

// What a control is for, in one sentence without a full stop: what it is, its unit, its range.
struct Description {
  std::string_view control;  // its name, or that of its family: "oType" for oType(1) and oType(2)
  std::string_view sentence;
};

// Gives the window's controls their sentences, as tooltips and as the descriptions that assistive
// tools read; that of a drop-down list is led by its name, which they do not read otherwise. The
// tooltip of a field or a column whose text is wider than it shows the whole text first. A
// control's own name goes before that of its family. Called once all controls have their names.
void describe(QWidget& window, std::span<const Description> descriptions);

}  // namespace tarnwick::ui
