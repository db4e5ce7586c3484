#include "ui/widgets.h"

#include "support/program.h"
#include "ui/desktop.h"
#include "ui/entry_field.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QVBoxLayout>

#include <array>

namespace tarnwick::tests {
namespace {

// A window with two of each control, shown and active.
class Widgets : public testing::Test {
protected:
  Widgets() {
    auto* layout = new QVBoxLayout(&window);
    for (QWidget* control :
         std::array<QWidget*, 7>{&field, &other, &slider, &list, &editable, &column, &button})
      layout->addWidget(control);
    window.bringForward();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    QObject::connect(&field, &ui::EntryField::validate, [this] { heard << "validate"; });
    QObject::connect(&field, &ui::EntryField::entered, [this] { heard << "entered"; });
    QObject::connect(&field, &ui::EntryField::focusLost, [this] { heard << "focusLost"; });
    field.setFocus();
    heard.clear();
  }
  QStringList take() { return std::exchange(heard, {}); }

  static constexpr std::array<std::string_view, 3> items{"one", "two", "three"};
  bool pointTyped = false;
  QStringList heard;
  ui::Window window{"fTest", "Test"};
  ui::EntryField field{&window,
                       "field",
                       {.keys = common::decimalKey,
                        .pointTyped = &pointTyped,
                        .clearsPointOnEntering = true,
                        .validatesOnFocusLost = true,
                        .maxLength = 5}};
  ui::EntryField other{&window, "other", {}};
  ui::Slider slider{&window, "slider", 0, 255};
  ui::SelectionList list{&window, "list", items};
  ui::EditableList editable{&window, "editable", items, "three"};
  ui::ResultColumn column{&window, "column", "000", 3};
  QPushButton button{"button", &window};
};

TEST_F(Widgets, EntryFieldTakesCharactersFromInputMethodsThroughTheFilter) {
  QInputMethodEvent event;
  event.setCommitString("1٣,.5\b.");
  QCoreApplication::sendEvent(&field, &event);
  EXPECT_EQ(field.contents(), "1.5");
  EXPECT_TRUE(pointTyped);
  QInputMethodEvent enter;
  enter.setCommitString("\r");
  QCoreApplication::sendEvent(&field, &enter);
  EXPECT_EQ(take(), QStringList({"validate", "entered"}));
}

TEST_F(Widgets, EntryFieldIgnoresControlCombinationsButEdits) {
  QGuiApplication::clipboard()->setText("777");
  field.setContents("12");
  const auto key = [&](int code, Qt::KeyboardModifiers modifiers, const char* text) {
    QKeyEvent event(QEvent::KeyPress, code, modifiers, QString::fromLatin1(text));
    QCoreApplication::sendEvent(&field, &event);
  };
  for (const char* text : {"\x16", "v", ""}) key(Qt::Key_V, Qt::ControlModifier, text);
  for (const char* text : {"\x01", "a", ""}) key(Qt::Key_A, Qt::ControlModifier, text);
  key(Qt::Key_Escape, {}, "\x1b");
  key(Qt::Key_Space, {}, " ");
  EXPECT_EQ(field.contents(), "12");
  EXPECT_FALSE(field.hasSelectedText());
  field.selectAll();
  for (const char* text : {"-", ",", " ", "\x1b"}) key(Qt::Key_unknown, {}, text);
  EXPECT_EQ(field.selectedText(), "12");  // a cancelled character replaces nothing
  key(Qt::Key_Home, {}, "");
  key(Qt::Key_Delete, {}, "\x7f");
  EXPECT_EQ(field.contents(), "2");
  key(Qt::Key_Enter, Qt::KeypadModifier, "\r");
  EXPECT_EQ(take(), QStringList({"validate", "entered"}));
}

TEST_F(Widgets, EntryFieldIsLeftOnlyForAnotherControlOfItsWindow) {
  window.showMessage(QMessageBox::Warning, "title", "text");
  ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() != nullptr; }));
  QApplication::activeModalWidget()->close();
  ui::Window second("fSecond", "Second");
  ui::EntryField there(&second, "there", {});
  second.bringForward();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&second));
  there.setFocus();
  window.bringForward();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  EXPECT_TRUE(field.hasFocus());
  EXPECT_EQ(take(), QStringList());
  other.setFocus();
  EXPECT_EQ(take(), QStringList({"validate", "validate", "focusLost"}));
  field.setFocus();
  window.close();
  EXPECT_EQ(take(), QStringList());
}

TEST_F(Widgets, EntryFieldMayBeLeftAndRefocusedByItsOwnValidation) {
  QObject::connect(&field, &ui::EntryField::validate, [this] { field.setFocus(); });
  QObject::connect(&other, &ui::EntryField::focusGained, [this] { heard << "other entered"; });
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, other.geometry().center());
  EXPECT_TRUE(field.hasFocus());
  EXPECT_EQ(take(), QStringList({"validate", "validate", "focusLost"}));
}

TEST_F(Widgets, WindowShowsOneMessageAtATime) {
  for (const char* text : {"first", "second"})
    window.showMessage(QMessageBox::Critical, "title", text);
  const auto boxes = window.findChildren<QMessageBox*>();
  ASSERT_EQ(boxes.size(), 1);
  EXPECT_EQ(boxes.front()->text(), "first");
}

TEST_F(Widgets, WindowMayBeDestroyedWhileItIsWorkedIn) {
  const auto second = std::make_unique<ui::Window>("fSecond", "Second");
  auto* there = new ui::EntryField(second.get(), "there", {});
  there->setFocus();
  second->bringForward();
  ASSERT_TRUE(QTest::qWaitForWindowActive(second.get()));
  EXPECT_TRUE(there->hasFocus());
}

TEST_F(Widgets, ResultFieldStandsOnTheBackgroundOfEachPalette) {
  ui::ResultField result(&window, "result", "0");
  QPalette dark;
  dark.setColor(QPalette::Window, Qt::darkBlue);
  QApplication::setPalette(dark);
  QCoreApplication::processEvents();
  EXPECT_EQ(result.palette().color(QPalette::Base), QColor(Qt::darkBlue));
  QApplication::setPalette(QPalette());
}

TEST_F(Widgets, ResultFieldStaysSelectedWhenItChangesAsTheTabKeyComes) {
  ui::ResultField result(&window, "result", "000");
  result.show();
  QObject::connect(&field, &ui::EntryField::validate, &result, [&] { result.setContents("42"); });
  result.setContents("7");
  EXPECT_EQ(result.selectedText(), "");
  result.setFocus(Qt::TabFocusReason);
  EXPECT_EQ(result.selectedText(), "42");
}

TEST_F(Widgets, EntryFieldIsCutAtItsLength) {
  field.setContents("1234567");
  EXPECT_EQ(field.contents(), "12345");
}

TEST_F(Widgets, SliderReportsRangeAndPositionTogetherAndOnce) {
  QList<int> positions;
  QObject::connect(&slider, &ui::Slider::moved, [&](int position) {
    EXPECT_EQ(position, slider.value());
    positions << position;
  });
  slider.setPosition(200);
  slider.setPosition(200);
  slider.setRangeAndPosition(-32768, 32767, -32768);
  slider.setRangeAndPosition(-10, 10, 50);
  slider.refreshPosition(10);
  slider.setPosition(-99);
  EXPECT_EQ(positions, QList<int>({200, -32768, 10, 10, -10}));
}

TEST_F(Widgets, OptionGroupsInOneParentDoNotMix) {
  ui::OptionGroup first(&window, "first", {{0, "a"}, {1, "b"}});
  ui::OptionGroup second(&window, "second", {{1, "c"}, {2, "d"}});
  QList<int> chosen;
  QObject::connect(&first, &ui::OptionGroup::chosen, [&](int index) { chosen << index; });
  first.select(1);
  second.select(2);
  first.select(1);
  first.select(0);
  EXPECT_EQ(chosen, QList<int>({1, 0}));
  EXPECT_EQ(second.selected(), 2);
}

TEST_F(Widgets, SelectionListReportsTheCurrentItemPickedAgain) {
  QList<int> chosen;
  QObject::connect(&list, &ui::SelectionList::chosen, [&](int index) { chosen << index; });
  list.choose(1);
  list.choose(1);
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Down);
  list.showPopup();
  QTest::keyClick(list.view(), Qt::Key_Return);
  EXPECT_EQ(chosen, QList<int>({1, 1, 2, 2}));
}

TEST_F(Widgets, EditableListTakesTypedTextAsItStands) {
  int choices = 0;
  QObject::connect(&editable, &ui::EditableList::chosen, [&] { ++choices; });
  editable.setFocus();
  for (const char* typed : {"tw", "TWO", "two", "four"}) {
    editable.lineEdit()->selectAll();
    QTest::keyClicks(&editable, typed);
    QTest::keyClick(&editable, Qt::Key_Return);
    EXPECT_EQ(editable.contents(), typed);
    other.setFocus();
    editable.setFocus();
    EXPECT_EQ(editable.contents(), typed);
  }
  EXPECT_EQ(choices, 0);
  EXPECT_EQ(editable.count(), 3);
}

TEST_F(Widgets, ColumnKeepsItsLineEnds) {
  column.setContents("1\r\n\r\n3\r\n");
  EXPECT_EQ(column.contents(), "1\r\n\r\n3\r\n");
  EXPECT_EQ(column.toPlainText(), "1\n\n3");
  column.setContents("\r\n");
  EXPECT_EQ(column.toPlainText(), "");
}

TEST_F(Widgets, LabelsShowMarkupAsText) {
  const std::unique_ptr<QLabel> label(ui::label(nullptr, "label", "<b>bold</b>"));
  EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

TEST_F(Widgets, EnterReachesNoButtonAndEscapeClosesNothing) {
  int clicks = 0;
  QObject::connect(&button, &QPushButton::clicked, [&] { ++clicks; });
  QTest::keyClick(window.windowHandle(), Qt::Key_Return);
  QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
  EXPECT_EQ(clicks, 0);
  EXPECT_TRUE(window.isVisible());
}

TEST(OnDisplayClipboard, KeepsCarriageReturnsForOtherPrograms) {
  for (const char* text : {"one\r\ntwo\r\n", "no line end", "é ' $FE"}) {
    ui::copyToClipboard(text);
    EXPECT_EQ(clipboardSeenByAnotherProgram(), text);
  }
}

}  // namespace
}  // namespace tarnwick::tests
