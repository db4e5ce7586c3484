#include "ui/accessible.h"

#include "ui/keys.h"
#include "ui/lcd_panel.h"
#include "ui/pixels.h"
#include "ui/window.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QRadioButton>

namespace tarnwick::ui {
namespace {

QAccessible::Role roleOf(const QAbstractButton& button) {
  if (!button.isCheckable()) return QAccessible::Button;
  return qobject_cast<const QRadioButton*>(&button) ? QAccessible::RadioButton
                                                    : QAccessible::CheckBox;
}

// A button on which an assistive tool's press or toggle is a click, and which tells its keys.
class ClickableButton : public QAccessibleWidget {
public:
  explicit ClickableButton(QAbstractButton& button)
      : QAccessibleWidget(&button, roleOf(button)), button_(button) {}

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Accelerator) return keysOf(button_).toString(QKeySequence::NativeText);
    return QAccessibleWidget::text(kind);
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = button_.isCheckable();
    state.checked = button_.isChecked();
    state.pressed = button_.isDown();
    return state;
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (button_.isEnabled()) names.prepend(click());
    return names;
  }

  void doAction(const QString& name) override {
    if (name != click()) return QAccessibleWidget::doAction(name);
    clickFromElsewhere(button_);
  }

private:
  const QString& click() const { return button_.isCheckable() ? toggleAction() : pressAction(); }

  QAbstractButton& button_;
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
  auto* control = qobject_cast<QWidget*>(object);
  if (control == nullptr || qobject_cast<Window*>(control->window()) == nullptr) return nullptr;
  if (auto* button = qobject_cast<QAbstractButton*>(control)) return new ClickableButton(*button);
  if (control->isWindow()) return new QAccessibleWidget(control, QAccessible::Window);
  if (qobject_cast<PixelPicture*>(control) != nullptr)
    return new QAccessibleWidget(control, QAccessible::Graphic);
  if (qobject_cast<PixelGrid*>(control) != nullptr || qobject_cast<LcdPanel*>(control) != nullptr)
    return new QAccessibleWidget(control, QAccessible::Grouping);
  return nullptr;
}

}  // namespace

void serveAssistiveTools() {
  QAccessible::installFactory(interfaceOf);
}

}  // namespace tarnwick::ui
