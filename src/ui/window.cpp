#include "ui/window.h"

#include "ui/accessible.h"
#include "ui/placement.h"
#include "ui/text.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QShortcut>

#include <utility>

namespace tarnwick::ui {
namespace {

// Keeps mouse presses, context menus and wheel steps from the controls of a window for as long as
// the message that it belongs to is open: also the press whose focus change brought the message up,
// which the toolkit delivers after that change.
class PressGuard : public QObject {
public:
  PressGuard(QMessageBox* message, QWidget* window) : QObject(message), window_(window) {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject* receiver, QEvent* event) override {
    switch (event->type()) {
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonDblClick:
      case QEvent::ContextMenu:
      case QEvent::Wheel: {
        const auto* control = qobject_cast<QWidget*>(receiver);
        return control != nullptr && control->window() == window_;
      }
      default:
        return false;
    }
  }

private:
  QPointer<QWidget> window_;
};

// Makes a message wide enough for its title to be shown whole beside the frame's buttons.
void fitTitle(QMessageBox& message) {
  constexpr int frameButtons = 140;
  const int width = message.fontMetrics().horizontalAdvance(message.windowTitle()) + frameButtons;
  auto* layout = qobject_cast<QGridLayout*>(message.layout());
  if (layout == nullptr) return;
  layout->addItem(new QSpacerItem(width, 0), layout->rowCount(), 0, 1, layout->columnCount());
}

FocusListener* listener(QWidget* control) {
  return dynamic_cast<FocusListener*>(control);
}

}  // namespace

Window::Window(std::string_view name, std::string_view caption)
    : QWidget(nullptr, Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint) {
  serveAssistiveTools();
  setObjectName(toQt(name));
  setWindowTitle(toQt(caption));
  setAccessibleName(toQt(caption));
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* now) { followFocus(now); });
}

// The toolkit may still move the focus while it takes a window apart: nothing follows it then.
Window::~Window() {
  disconnect(qApp, nullptr, this, nullptr);
}

void Window::fitToScreen() {
  padToDevicePixels(*this);
  scrolls_ = scrollIfTooLarge(*this);
  if (scrolls_ == nullptr) adjustSize();
}

void Window::bringForward() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void Window::closeBy(const QKeySequence& keys) {
  connect(new QShortcut(keys, this), &QShortcut::activated, this, &QWidget::close);
}

void Window::showMessage(QMessageBox::Icon icon, std::string_view title, std::string_view text) {
  if (message_ != nullptr) return;
  message_ = new QMessageBox(icon, toQt(title), toQt(text), QMessageBox::Ok, this);
  message_->setObjectName(QStringLiteral("message"));
  message_->setTextFormat(Qt::PlainText);
  message_->setAttribute(Qt::WA_DeleteOnClose);
  fitTitle(*message_);
  new PressGuard(message_, this);
  message_->open();
}

void Window::closeEvent(QCloseEvent* event) {
  delete message_;
  emit unloading();
  event->accept();
}

void Window::followFocus(QWidget* now) {
  if (now == nullptr || now->window() != this || now == current_) return;
  const QPointer<QWidget> left = std::exchange(current_, nullptr);
  if (FocusListener* control = listener(left)) control->focusLeft();
  if (QApplication::focusWidget() != now) return;
  current_ = now;
  if (scrolls_ != nullptr) bringIntoView(*scrolls_, *now);
  if (FocusListener* control = listener(now)) control->focusEntered();
}

}  // namespace tarnwick::ui
