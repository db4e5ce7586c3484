#include "support/every_window.h"

#include "ui/widgets.h"

#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QStyle>

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace tarnwick::tests {
namespace {

QString textOf(const QWidget* control) {
  if (const auto* column = qobject_cast<const ui::ResultColumn*>(control))
    return ui::toQt(column->contents());
  if (const auto* slider = qobject_cast<const QSlider*>(control))
    return QStringLiteral("%1 of %2 to %3")
        .arg(slider->value())
        .arg(slider->minimum())
        .arg(slider->maximum());
  if (const auto* button = qobject_cast<const QAbstractButton*>(control))
    return button->text() + (button->isChecked() ? " (on)" : "");
  for (const char* property : {"title", "currentText", "text"})
    if (const QVariant text = control->property(property); text.isValid()) return text.toString();
  return {};
}

// A window's title and its controls in their tab order: name, what it shows, how much it takes.
QString described(const QWidget* window) {
  QString text = "== " + window->objectName() + ": " + window->windowTitle() + "\n";
  for (const QWidget* control = window->nextInFocusChain(); control != window;
       control = control->nextInFocusChain()) {
    if (control->objectName().isEmpty() || control->objectName().startsWith("qt_")) continue;
    text += control->objectName() + " \"" +
            textOf(control).replace("\r\n", "\\").replace("\n", "\\") + "\"";
    if (const auto* field = qobject_cast<const QLineEdit*>(control);
        field != nullptr && !field->isReadOnly() && field->maxLength() < 32767)
      text += " at most " + QString::number(field->maxLength());
    if (const auto* list = qobject_cast<const QComboBox*>(control))
      text += " of " + QString::number(list->count());
    text += control->isEnabled() ? "" : " disabled";
    text += control->isHidden() ? " hidden\n" : "\n";
  }
  return text;
}

// The file lists every window as it opens; where it differs, what is seen is written beside the
// test program, to be looked at and, if it is right, copied.
TEST_F(EveryWindow, OpensAsListedEachTime) {
  QFile list(QStringLiteral(TESTS_FOLDER "/app/fresh_windows.txt"));
  ASSERT_TRUE(list.open(QIODevice::ReadOnly | QIODevice::Text));
  const std::string wanted = list.readAll().toStdString();
  for (int time = 0; time < 2; ++time) {
    QString seen;
    for (const QWidget* opened : all) seen += described(opened);
    EXPECT_EQ(seen.toStdString(), wanted);
    QFile written(QStringLiteral("fresh_windows.txt"));
    if (HasFailure() && written.open(QIODevice::WriteOnly)) written.write(seen.toUtf8());

    for (QWidget* opened : all) {
      for (auto* slider : opened->findChildren<QSlider*>()) slider->setValue(slider->maximum());
      for (auto* option : opened->findChildren<QAbstractButton*>())
        if (option->isCheckable()) option->click();
    }
    window("fMain")->close();
    windows.open("fMain");
    openAll();
  }
}

TEST_F(EveryWindow, NamesItsControls) {
  EXPECT_EQ(all.size(), 11);
  for (const QWidget* opened : all) {
    std::set<QString> names;
    for (const auto* control : opened->findChildren<QWidget*>()) {
      if (!isControl(control) || control->objectName().startsWith("qt_")) continue;
      const std::string name = ui::fromQt(opened->objectName() + "." + control->objectName());
      EXPECT_FALSE(control->objectName().isEmpty()) << name;
      EXPECT_TRUE(names.insert(control->objectName()).second) << name;
      EXPECT_FALSE(control->accessibleName().isEmpty()) << name;
    }
  }
}

// What a control shows, without the state that its text in the list tells.
QString lettersOf(const QWidget* control) {
  if (control->inherits("QSlider")) return {};
  const auto* button = qobject_cast<const QAbstractButton*>(control);
  return button != nullptr ? button->text() : textOf(control);
}

// The width that a control needs to show its text whole.
int neededWidth(const QWidget* control) {
  const QString text = lettersOf(control);
  int width = 0;
  for (const QString& line : text.split("\r\n"))
    width = std::max(width, control->fontMetrics().horizontalAdvance(line));
  if (const auto* field = qobject_cast<const QLineEdit*>(control)) {
    const int frame = field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, field);
    return width + (field->hasFrame() ? 2 * frame : 0) + 2 * 2 + 1;  // its margins and the cursor
  }
  if (const auto* column = qobject_cast<const QPlainTextEdit*>(control))
    return width + 2 * static_cast<int>(column->document()->documentMargin());
  const bool hasFrame = control->window()->objectName() != "fMain";
  return hasFrame && !text.isEmpty() ? std::max(width, control->sizeHint().width()) : width;
}

// Whether two controls cover no more of each other than the line that two cells of the grid share.
// What lies on the launcher's picture is meant to.
bool areApart(const QWidget* one, const QWidget* other) {
  constexpr QMargins line(1, 1, 1, 1);
  return one == other || !other->isVisible() || one->objectName() == "Picture1" ||
         other->objectName() == "Picture1" ||
         !one->geometry().marginsRemoved(line).intersects(other->geometry().marginsRemoved(line));
}

// Where a control stands in its parent, or how large a window is.
QRect placeOf(const QWidget* widget) {
  return widget->isWindow() ? QRect({}, widget->size()) : widget->geometry();
}

TEST_F(EveryWindow, KeepsThePlacesInWhichItOpened) {
  std::map<const QWidget*, QRect> places;
  for (const QWidget* opened : all) {
    places[opened] = placeOf(opened);
    for (const auto* control : opened->findChildren<QWidget*>())
      if (!control->objectName().startsWith("qt_")) places[control] = placeOf(control);
  }
  QTest::qWait(50);
  for (const auto& [widget, place] : places)
    EXPECT_EQ(placeOf(widget), place) << ui::fromQt(widget->objectName());
}

class WideResults : public Program {};

TEST_F(WideResults, AreShownWhole) {
  for (const auto& [button, name, oscillator, field] :
       {std::tuple("cUSART", "fUSART", "36.57142", "tCalcBaud1"),
        {"cEUSART", "fEUSART", "64", "tCalcBaud16_1"}}) {
    open(button, name);
    enterAndConfirm("fOSC", oscillator);
    click("cKBaud");
    enterAndConfirm("BaudRate", "2285.714");
    EXPECT_EQ(shown(field), "2285.714 K");
    EXPECT_GE(control(field)->width(), neededWidth(control(field))) << name;
  }
}

// Holds with every font and at every scale factor: the list of tests has it with some of them.
TEST_F(EveryWindow, ShowsItsTextsWholeAndApart) {
  window("fSerinSerout2")->findChild<QAbstractButton*>("oParity(0)")->click();  // one button more
  for (const QWidget* opened : all) {
    for (const auto* control : opened->findChildren<QWidget*>()) {
      const QString name = control->objectName();
      if (!control->isVisible() || name.isEmpty() || name.startsWith("qt_")) continue;
      const std::string seen = ui::fromQt(opened->objectName() + "." + name);
      const QWidget* around = control->parentWidget();
      EXPECT_TRUE(around->rect().contains(control->geometry())) << seen;
      EXPECT_GE(control->width(), neededWidth(control)) << seen;
      EXPECT_GE(control->height(),
                lettersOf(control).isEmpty() ? 0 : control->fontMetrics().height())
          << seen;
      for (const auto* other :
           around->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        EXPECT_TRUE(areApart(control, other)) << seen << ", " << ui::fromQt(other->objectName());
    }
  }
  EXPECT_FALSE(window("fMain")->findChild<QWidget*>("qt_menubar_ext_button")->isVisible());
}

}  // namespace
}  // namespace tarnwick::tests
