#include "support/look.h"
#include "support/program.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>

#include <random>

namespace tarnwick::tests {
namespace {

constexpr std::array keys{
    Qt::Key_0,    Qt::Key_1,    Qt::Key_5,  Qt::Key_6,     Qt::Key_9,      Qt::Key_Period,
    Qt::Key_0,    Qt::Key_4,    Qt::Key_E,  Qt::Key_Minus, Qt::Key_Return, Qt::Key_Backspace,
    Qt::Key_Tab,  Qt::Key_Tab,  Qt::Key_V,  Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Backtab,
    Qt::Key_Left, Qt::Key_Down, Qt::Key_F4, Qt::Key_Space, Qt::Key_PageUp, Qt::Key_Home,
    Qt::Key_W,    Qt::Key_Q,    Qt::Key_C,  Qt::Key_R};

// No text here holds the letters of "inf" or "nan": a field that shows them made them up itself.
constexpr std::array texts{"0",     "1",     "4",       "64",   "100",   "9600",   ".",
                           "-5",    "1E999", "-1D-400", "&HFF", "65536", "0.0001", "1E-300",
                           "1.5.2", "٣",     "  7 ",    "",     "5.26",  "PORTB",  "2147483648"};

// A user without a plan: clicks, drags, types, pastes, opens and closes windows, with message
// boxes and lists open, in an order that only the seed decides.
class RandomEvents : public Program {
protected:
  void act() {
    QWidget* window = windows.loaded(oneOf(windowNames));
    if (message() != nullptr && below(2) == 0) window = message();
    if (QApplication::activePopupWidget() != nullptr) window = QApplication::activePopupWidget();
    const int dice = below(100);
    if (window == nullptr) return windows.open(dice < 25 ? oneOf(windowNames) : "fMain");
    if (below(10) == 0) window->activateWindow();
    if (dice < 45)
      press(window, oneOf(window->findChildren<QWidget*>()), dice);
    else if (dice < 90)
      pressKey(oneOf(keys));
    else if (dice < 98)
      insert(QString::fromUtf8(oneOf(texts)));
    else
      window->close();
  }

private:
  int below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

  template <typename List>
  auto oneOf(const List& list) -> std::decay_t<decltype(list[0])> {
    return list[static_cast<decltype(list.size())>(below(static_cast<int>(list.size())))];
  }

  // Clicks, clicks twice or drags.
  void press(QWidget* window, const QWidget* control, int dice) {
    const QPoint place = control->mapTo(window, QPoint(below(120), below(20)));
    const QPoint end = place + (dice < 10 ? QPoint(below(200) - 100, 0) : QPoint());
    const QPointer<QWindow> target = window->windowHandle();
    if (dice < 4) return QTest::mouseDClick(target, Qt::LeftButton, {}, place);
    QTest::mousePress(target, Qt::LeftButton, {}, place);
    if (target != nullptr) QTest::mouseMove(target, end);
    if (target != nullptr) QTest::mouseRelease(target, Qt::LeftButton, {}, end);
  }

  // Clicks a key by one press and one release. QTest::keyClick sends the keys of the modifiers too,
  // and that after the release to a window that it may have closed.
  void pressKey(Qt::Key key) {
    const char code = QTest::keyToAscii(key);
    const QString text = code == 0 ? "" : QString(QLatin1Char(code));
    constexpr std::array held{Qt::ControlModifier, Qt::AltModifier};
    const auto modifier = below(9) == 0 ? oneOf(held) : Qt::NoModifier;
    const QPointer<QWindow> focus = QGuiApplication::focusWindow();
    for (const bool down : {true, false})
      if (focus != nullptr) QTest::simulateEvent(focus, down, key, modifier, text, false);
  }

  // Pastes, or commits by an input method.
  void insert(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    if (field == nullptr) return;
    if (below(2) == 0) field->selectAll();
    if (below(3) != 0) return field->paste();
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(field, &event);
  }

  std::mt19937 random_{
      static_cast<unsigned>(20261123 + qEnvironmentVariableIntValue("TARNWICK_SEED"))};
};

// tools/stress asks for more events, and for other ones.
TEST_F(RandomEvents, LeaveNoWindowBroken) {
  const int asked = qEnvironmentVariableIntValue("TARNWICK_EVENTS");
  for (int i = 0; i < (asked > 0 ? asked : 20'000) && !HasFailure(); ++i) {
    act();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (const QWidget* control : QApplication::allWidgets())
      for (const char* property : {"text", "plainText"})
        for (const char* word : {"inf", "nan"})
          EXPECT_FALSE(control->property(property).toString().contains(word, Qt::CaseInsensitive))
              << fullName(control) << " after event " << i;
  }
}

}  // namespace
}  // namespace tarnwick::tests
