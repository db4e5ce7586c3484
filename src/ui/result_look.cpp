#include "ui/result_look.h"

#include "ui/drawing.h"

#include <QEvent>

namespace tarnwick::ui {
namespace {

// The colour of a text that is out of date: nearer to its ground, and still to be read, also where
// a line is marked.
QColor dimmed(const QColor& text, const QPalette& palette) {
  constexpr double share = 0.42;
  const QColor nearer = between(text, palette.color(QPalette::Window), share);
  return distinct(nearer, markColor(palette), textContrast);
}

ResultLook* lookOf(QWidget* result) {
  auto* look = result->findChild<ResultLook*>(QString(), Qt::FindDirectChildrenOnly);
  return look != nullptr ? look : new ResultLook(result);
}

}  // namespace

ResultLook::ResultLook(QWidget* result) : QObject(result), result_(result) {
  result->installEventFilter(this);
  apply();
}

void ResultLook::setOutOfDate(const QObject* reason, bool outOfDate) {
  const bool was = !reasons_.empty();
  if (outOfDate)
    reasons_.insert(reason);
  else
    reasons_.erase(reason);
  if (reasons_.empty() == was) apply();
}

bool ResultLook::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::PaletteChange) apply();
  return false;
}

void ResultLook::apply() {
  QPalette own;
  const bool isLabel = qobject_cast<QLabel*>(result_) != nullptr;
  if (!isLabel) own.setBrush(QPalette::Base, own.brush(QPalette::Window));
  const auto text = isLabel ? QPalette::WindowText : QPalette::Text;
  if (!reasons_.empty()) own.setColor(text, dimmed(own.color(text), own));
  result_->setPalette(own);
}

Dimming::Dimming(EntryField* field, const QWidgetList& results)
    : QObject(field), field_(field), number_(field->number()) {
  for (QWidget* result : results) looks_ << lookOf(result);
  connect(field, &EntryField::edited, this, &Dimming::update);
  connect(field, &EntryField::focusLost, this, [this] {
    if (!field_->isCurrent()) settle();  // otherwise the user was led back
  });
}

void Dimming::settle() {
  number_ = field_->number();
  update();
}

void Dimming::update() {
  for (ResultLook* look : looks_) look->setOutOfDate(this, field_->number() != number_);
}

void showOutOfDate(const QWidgetList& results, const QObject* reason, bool outOfDate) {
  for (QWidget* result : results) lookOf(result)->setOutOfDate(reason, outOfDate);
}

QWidgetList resultsOf(const QWidget& window) {
  QWidgetList results;
  for (auto* field : window.findChildren<ResultField*>()) results << field;
  for (auto* column : window.findChildren<ResultColumn*>()) results << column;
  return results;
}

}  // namespace tarnwick::ui
