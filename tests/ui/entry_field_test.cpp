#include "ui/entry_field.h"

#include "support/program.h"
#include "ui/result_look.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QMenu>

#include <utility>

namespace tarnwick::tests {
namespace {

// A window with two fields that hold 12.5, and a result of the second; the user is in the first.
class EntryField : public testing::Test {
protected:
  EntryField() {
    window.resize(300, 150);
    for (int y = 0; ui::EntryField * field : {&first, &second}) {
      field->setAlignment(Qt::AlignLeft);
      field->setGeometry(0, y, 200, 30);
      field->setContents("12.5");
      y += 50;
    }
    result.setContents("12.5");
    ui::dimWhileEdited(&second, &result);
    window.bringForward();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(first.selectedText(), "12.5");
  }

  // Drags over so many pixels from the left edge of the second field's text on.
  void drag(int pixels) {
    const QPoint start = second.geometry().topLeft() + QPoint(5, 15);
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, start);
    QTest::mouseMove(window.windowHandle(), start + QPoint(pixels, 0));
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, start + QPoint(pixels, 0));
  }

  void compose(const char* preedit, const char* committed) {
    QInputMethodEvent event(QString::fromUtf8(preedit), {});
    event.setCommitString(QString::fromUtf8(committed));
    QCoreApplication::sendEvent(&second, &event);
  }

  bool isDimmed() const {
    return result.palette().color(QPalette::Text) != QPalette().color(QPalette::Text);
  }

  ui::Window window{"fTest", "Test"};
  ui::EntryField first{&window, "first", {}};
  ui::EntryField second{&window, "second", {}};
  ui::ResultField result{&window, "result", "0000"};
};

TEST_F(EntryField, SelectsWhatTheMouseMeans) {
  drag(second.fontMetrics().horizontalAdvance("12") -
       second.fontMetrics().horizontalAdvance(".") / 2);
  EXPECT_EQ(second.selectedText(), "12");
  first.setFocus();
  for (const auto& [trembling, selected] : {std::pair(3, "12.5"), {0, ""}}) {
    drag(trembling);
    EXPECT_EQ(second.selectedText(), selected);
  }
  QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, second.geometry().center());
  EXPECT_EQ(second.selectedText(), "12.5");
  // The user came by a key: the first click leaves the number selected, unless a key moved there.
  for (const bool moves : {false, true}) {
    first.setFocus();
    second.setFocus(Qt::TabFocusReason);
    if (moves) QTest::keyClick(&second, Qt::Key_End);
    drag(0);
    EXPECT_EQ(second.selectedText(), moves ? "" : "12.5");
  }
}

TEST_F(EntryField, KeepsTheSelectionWhileAnotherWindowIsInFront) {
  second.setFocus();
  QTest::keyClick(&second, Qt::Key_Home);
  QTest::keyClick(&second, Qt::Key_Right, Qt::ShiftModifier);
  window.showMessage(QMessageBox::Warning, "title", "text");
  const auto isInFront = [&] { return QGuiApplication::focusWindow() == window.windowHandle(); };
  ASSERT_TRUE(QTest::qWaitFor([&] { return !isInFront(); }));
  QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitFor(isInFront));
  EXPECT_EQ(second.selectedText(), "1");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  drag(0);
  EXPECT_EQ(second.selectedText(), "12.5");
}

TEST_F(EntryField, LosesItsNumberToNoRefusedComposition) {
  second.setFocus();
  compose("´", "");
  compose("", "é");
  EXPECT_EQ(second.contents(), "12.5");
  compose("7", "");
  compose("", "7");
  EXPECT_EQ(second.contents(), "7");
}

TEST_F(EntryField, NamesNoKeysInItsMenu) {
  QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
  QCoreApplication::sendEvent(&first, &event);
  const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QString commands;
  for (const QAction* command : menu->actions()) commands += command->text() + "|";
  EXPECT_EQ(commands.remove('&'), "Undo|Redo||Cut|Copy|Paste|Delete||Select All|");
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
}

TEST_F(EntryField, DimsItsResultsWhileItHoldsAnotherNumber) {
  second.setFocus();
  second.clear();
  for (const auto& [text, dimmed] :
       {std::pair("1", true), {"12.5", false}, {"12.50", false}, {"7", true}}) {
    second.setText(text);  // as an assistive tool does
    EXPECT_EQ(isDimmed(), dimmed) << text;
  }
  second.setContents("8");
  EXPECT_TRUE(isDimmed());  // its calculation is to come
  result.setContents("8");
  EXPECT_FALSE(isDimmed());
  second.setText("9");
  // Left, it is validated, also where its validation finds nothing to calculate.
  first.setFocus();
  EXPECT_FALSE(isDimmed());
}

}  // namespace
}  // namespace tarnwick::tests
