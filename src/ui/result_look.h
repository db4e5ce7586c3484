#pragma once

#include "ui/entry_field.h"
#include "ui/widgets.h"

#include <set>

namespace tarnwick::ui {

// How a result looks: a field on the window's own background, so that it is not taken for an input;
// dimmed while the result is out of date. Follows the desktop when it turns from light to dark.
class ResultLook : public QObject {
  Q_OBJECT

public:
  // Gives a field or a label its look.
  explicit ResultLook(QWidget* result);

  // Dims the result for as long as there is a reason to.
  void setOutOfDate(const QObject* reason, bool outOfDate);

  bool eventFilter(QObject* result, QEvent* event) override;

private:
  void apply();

  QWidget* result_;
  std::set<const QObject*> reasons_;
};

// Dims results, their texts as they are, while a field holds another number than the one that they
// were made of: until they are written anew or the field is left for another one.
class Dimming : public QObject {
  Q_OBJECT

public:
  Dimming(EntryField* field, const QWidgetList& results);

  // The results were made of what the field holds.
  void settle();

private:
  void update();

  EntryField* field_;
  QList<ResultLook*> looks_;
  double number_;
};

// Answers the result fields and columns of a window.
[[nodiscard]] QWidgetList resultsOf(const QWidget& window);

// Dims results, or takes a reason to dim them back.
void showOutOfDate(const QWidgetList& results, const QObject* reason, bool outOfDate);

// Dims results while the field is edited; when the first of them is written, all are true again.
template <typename Result>
void dimWhileEdited(EntryField* field, Result* first, const QWidgetList& others = {}) {
  auto* dimming = new Dimming(field, QWidgetList{first} + others);
  QObject::connect(first, &Result::written, dimming, &Dimming::settle);
}

}  // namespace tarnwick::ui
