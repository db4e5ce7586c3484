#include "support/random_user.h"

#include "ui/text.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace tarnwick::tests {
namespace {

constexpr std::array<Qt::Key, 22> keys{
    Qt::Key_Return, Qt::Key_Enter,     Qt::Key_Tab,    Qt::Key_Tab,    Qt::Key_Backtab,
    Qt::Key_Escape, Qt::Key_Space,     Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Up,
    Qt::Key_Down,   Qt::Key_Home,      Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown,
    Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Insert, Qt::Key_F4,     Qt::Key_V,
    Qt::Key_A,      Qt::Key_X};

// No text here holds the letters of "inf" or "nan": a field that shows them made them up itself.
constexpr std::array<const char*, 24> texts{
    "0",     "1",        "4",       "20",   "64",        "100",    "9600",   ".",
    "-5",    "1E999",    "-1D-400", "&HFF", "65536",     "0.0001", "1E-300", "1e300",
    "1.5.2", "\xd9\xa3", "  7 ",    "",     "000000000", "5.26",   "PORTB",  "2147483648"};

// Clicks a key by one press and one release. QTest::keyClick sends the keys of the modifiers too,
// and that after the release to a window that it may have closed.
void clickKey(Qt::Key key, char character, Qt::KeyboardModifiers modifiers = {}) {
  const QString text = character == 0 ? QString() : QString(QChar::fromLatin1(character));
  const QPointer<QWindow> focus = QGuiApplication::focusWindow();
  for (const bool press : {true, false})
    if (focus != nullptr) QTest::simulateEvent(focus, press, key, modifiers, text, false);
}

bool shows(const QString& text, const char* word) {
  return text.contains(QLatin1String(word), Qt::CaseInsensitive);
}

}  // namespace

RandomUser::RandomUser(app::WindowSet& windows, std::vector<std::string> launcherButtons,
                       unsigned seed)
    : windows_(windows), launcherButtons_(std::move(launcherButtons)), random_(seed) {}

void RandomUser::act(int events) {
  for (int i = 0; i < events && !testing::Test::HasFailure(); ++i) {
    actOnce();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    checkFields();
    if (testing::Test::HasFailure()) ADD_FAILURE() << "after event " << i;
  }
}

int RandomUser::below(int bound) {
  return static_cast<int>(random_() % static_cast<unsigned>(bound));
}

QWidget* RandomUser::someWindow() {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup;
  if (QWidget* box = QApplication::activeModalWidget(); box != nullptr && below(2) == 0) return box;
  QWidgetList visible;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && window->windowHandle() != nullptr) visible << window;
  if (visible.isEmpty()) return nullptr;
  // The launcher is left at once for the windows that are to be tried.
  QWidget* chosen = oneOf(visible);
  if (chosen->objectName() == QLatin1String("fMain")) chosen = oneOf(visible);
  return chosen;
}

QWidget* RandomUser::someControl(QWidget* window) {
  QWidgetList controls;
  for (QWidget* control : window->findChildren<QWidget*>())
    if (control->isVisible() && control->window() == window) controls << control;
  return controls.isEmpty() ? window : oneOf(controls);
}

void RandomUser::actOnce() {
  QWidget* window = someWindow();
  const int dice = below(100);
  if (window == nullptr) {
    windows_.open("fMain");
  } else if (dice < 35) {
    clickSomewhere(window);
  } else if (dice < 42) {
    drag(window);
  } else if (dice < 46) {
    wheel(window);
  } else if (dice < 62) {
    pressSomeKey(window);
  } else if (dice < 82) {
    typeSomething(window);
  } else if (dice < 85) {
    commitByInputMethod();
  } else if (dice < 92) {
    pasteSomething();
  } else if (dice < 98) {
    openSomeWindow();
  } else {
    closeSomeWindow();
  }
}

void RandomUser::clickSomewhere(QWidget* window) {
  const QWidget* control = someControl(window);
  const QPoint place(below(std::max(control->width(), 1)), below(std::max(control->height(), 1)));
  const QPoint target = control->mapTo(window, place);
  QWindow* handle = window->windowHandle();
  if (below(10) == 0)
    QTest::mouseDClick(handle, Qt::LeftButton, {}, target);
  else
    QTest::mouseClick(handle, Qt::LeftButton, {}, target);
}

void RandomUser::drag(QWidget* window) {
  const auto within = [&] { return QPoint(below(window->width()), below(window->height())); };
  const QPoint start = someControl(window)->mapTo(window, QPoint(5, 5));
  const QPointer<QWindow> handle = window->windowHandle();
  QTest::mousePress(handle, Qt::LeftButton, {}, start);
  const QPoint end = within();
  if (handle != nullptr) QTest::mouseMove(handle, end);
  if (handle != nullptr) QTest::mouseRelease(handle, Qt::LeftButton, {}, end);
}

void RandomUser::wheel(QWidget* window) {
  QWidget* control = someControl(window);
  const QPointF place = control->rect().center();
  QWheelEvent event(place, control->mapToGlobal(place), QPoint(), QPoint(0, below(2) ? 120 : -120),
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(control, &event);
}

void RandomUser::pressSomeKey(QWidget* window) {
  if (below(3) == 0) window->activateWindow();
  const auto modifiers = std::array<Qt::KeyboardModifiers, 6>{
      Qt::NoModifier,      Qt::NoModifier,    Qt::NoModifier,
      Qt::ControlModifier, Qt::ShiftModifier, Qt::KeypadModifier};
  const Qt::Key key = oneOf(keys);
  clickKey(key, QTest::keyToAscii(key), oneOf(modifiers));
}

void RandomUser::typeSomething(QWidget* window) {
  if (below(3) == 0) window->activateWindow();
  constexpr std::string_view characters = "0123456789.0123456789.-,eX@";
  for (int i = below(4); i >= 0; --i) {
    const char character = oneOf(characters);
    clickKey(QTest::asciiToKey(character), character);
  }
}

void RandomUser::commitByInputMethod() {
  QWidget* focus = QApplication::focusWidget();
  if (focus == nullptr || !focus->testAttribute(Qt::WA_InputMethodEnabled)) return;
  QInputMethodEvent event;
  event.setCommitString(QString::fromUtf8(oneOf(texts)));
  QCoreApplication::sendEvent(focus, &event);
}

void RandomUser::pasteSomething() {
  QGuiApplication::clipboard()->setText(QString::fromUtf8(oneOf(texts)));
  auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  if (field == nullptr) return;
  if (below(2) == 0) field->selectAll();
  field->paste();
}

void RandomUser::openSomeWindow() {
  windows_.open("fMain");
  QWidget* launcher = windows_.loaded("fMain");
  if (below(8) == 0) {
    launcher->findChild<QAction*>(QStringLiteral("About"))->trigger();
    return;
  }
  auto* button = launcher->findChild<QPushButton*>(ui::toQt(oneOf(launcherButtons_)));
  ASSERT_NE(button, nullptr);
  button->click();
}

void RandomUser::closeSomeWindow() {
  QWidgetList open;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (qobject_cast<ui::Window*>(window) != nullptr && window->isVisible()) open << window;
  if (!open.isEmpty()) oneOf(open)->close();
}

void RandomUser::checkFields() {
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    for (const auto* field : window->findChildren<QLineEdit*>())
      if (shows(field->text(), "inf") || shows(field->text(), "nan"))
        ADD_FAILURE() << field->objectName().toStdString() << ": " << field->text().toStdString();
    for (const auto* column : window->findChildren<QPlainTextEdit*>())
      if (shows(column->toPlainText(), "inf") || shows(column->toPlainText(), "nan"))
        ADD_FAILURE() << column->objectName().toStdString();
  }
}

}  // namespace tarnwick::tests
