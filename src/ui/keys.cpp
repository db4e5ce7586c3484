#include "ui/keys.h"

#include <QEvent>
#include <QMessageBox>
#include <QShortcut>

namespace tarnwick::ui {
namespace {

bool showsMessage(const QWidget& window) {
  const auto* message = window.findChild<QMessageBox*>();
  return message != nullptr && message->isVisible();
}

class ButtonShortcut : public QShortcut {
public:
  ButtonShortcut(QAbstractButton& button, const QKeySequence& keys)
      : QShortcut(keys, &button), button_(button) {
    setAutoRepeat(false);
    connect(this, &QShortcut::activated, this, [this] { clickFromElsewhere(button_); });
    button.installEventFilter(this);
    nameKeys();
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::ToolTipChange) nameKeys();
    return false;
  }

private:
  void nameKeys() {
    const QString name = '(' + key().toString(QKeySequence::NativeText) + ')';
    if (const QString tip = button_.toolTip(); !tip.endsWith(name))
      button_.setToolTip((tip + ' ' + name).trimmed());
  }

  QAbstractButton& button_;
};

}  // namespace

void clickFromElsewhere(QAbstractButton& button) {
  const QWidget& window = *button.window();
  if (!button.isEnabled() || showsMessage(window)) return;
  button.setFocus(Qt::ShortcutFocusReason);
  if (!showsMessage(window)) button.click();
}

void clickBy(QAbstractButton& button, const QKeySequence& keys) {
  new ButtonShortcut(button, keys);
}

QKeySequence keysOf(const QAbstractButton& button) {
  const auto* shortcut = button.findChild<QShortcut*>();
  return shortcut == nullptr ? QKeySequence() : shortcut->key();
}

}  // namespace tarnwick::ui
