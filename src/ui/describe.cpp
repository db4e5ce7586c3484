#include "ui/describe.h"

#include "ui/text.h"

#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolTip>

#include <algorithm>
#include <string>

namespace tarnwick::ui {
namespace {

std::string_view sentenceOf(std::string_view control, std::span<const Description> descriptions) {
  const auto found = std::ranges::find(descriptions, control, &Description::control);
  if (found != descriptions.end()) return found->sentence;
  const auto index = control.find('(');
  return index == std::string_view::npos ? std::string_view()
                                         : sentenceOf(control.substr(0, index), descriptions);
}

// The text of a field or a column that is not seen whole; otherwise nothing.
QString cutText(QWidget& control) {
  QString text;
  constexpr int margins = 2 * 4;  // of a field's frame and text
  int room = control.width() - margins;
  if (const auto* field = qobject_cast<const QLineEdit*>(&control)) {
    text = field->text();
  } else if (const auto* column = qobject_cast<const QPlainTextEdit*>(&control)) {
    text = column->toPlainText();
    room = column->viewport()->width();
  }
  const int width = control.fontMetrics().size(0, text).width();
  return width > room ? text : QString();
}

class WholeText : public QObject {
public:
  using QObject::QObject;

  bool eventFilter(QObject* receiver, QEvent* event) override {
    auto* control = qobject_cast<QWidget*>(receiver);
    if (event->type() != QEvent::ToolTip || control == nullptr) return false;
    const QString text = cutText(*control);
    if (text.isEmpty()) return false;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       text + QLatin1Char('\n') + control->toolTip(), control);
    return true;
  }
};

}  // namespace

void describe(QWidget& window, std::span<const Description> descriptions) {
  auto* wholeText = new WholeText(&window);  // which owns it
  for (auto* control : window.findChildren<QWidget*>()) {
    const QString sentence = toQt(sentenceOf(fromQt(control->objectName()), descriptions));
    if (sentence.isEmpty()) continue;
    const bool isList = qobject_cast<QComboBox*>(control) != nullptr;
    control->setToolTip(sentence);
    control->installEventFilter(wholeText);
    control->setAccessibleDescription(
        isList ? control->accessibleName() + QStringLiteral(": ") + sentence : sentence);
  }
}  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks)

}  // namespace tarnwick::ui
