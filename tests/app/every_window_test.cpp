#include "support/look.h"
#include "support/program.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFontDatabase>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSlider>

#include <algorithm>
#include <array>

namespace tarnwick::tests {
namespace {

QString quoted(QString text) {
  return " \"" + text.replace("\r\n", "\\").replace("\n", "\\") + '"';
}

// What a control shows, and whether it can be used.
QString stateOf(const QWidget* control) {
  const char* state = control->isHidden() ? " hidden" : control->isEnabled() ? "" : " disabled";
  return quoted(textOf(control)) + state;
}

// How a control stands there, what it takes, and whether the keys reach it first.
QString marks(const QWidget* control) {
  const auto* field = qobject_cast<const QLineEdit*>(control);
  const auto* slider = qobject_cast<const QSlider*>(control);
  const bool isEntry = field != nullptr && !field->isReadOnly();
  const QString fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
  QString all;
  for (const auto& [holds, mark] : std::initializer_list<std::pair<bool, const char*>>{
           {control == control->window()->focusWidget(), " focus"},
           {control->font().bold(), " bold"},
           {control->font().family() == fixed, " fixed"},
           {field != nullptr && field->alignment().testFlag(Qt::AlignRight), " right"},
           {field != nullptr && field->alignment().testFlag(Qt::AlignHCenter), " centred"},
           {slider != nullptr && slider->hasTracking(), " followed"},
           {isEntry, " entry"}})
    all += holds ? mark : "";
  if (isEntry && field->maxLength() < 32767) all += " of " + QString::number(field->maxLength());
  if (const auto* list = qobject_cast<const QComboBox*>(control)) {
    all += list->isEditable() ? " entry or" : " only";
    for (int i = 0; i < list->count(); ++i) all += quoted(list->itemText(i));
  }
  return all;
}

// What an assistive tool calls a control; of a list its name is the item and this its description.
QString heard(QWidget* control) {
  const bool isList = control->inherits("QComboBox");
  return QAccessible::queryAccessibleInterface(control)->text(isList ? QAccessible::Description
                                                                     : QAccessible::Name);
}

// All that is told of a control beside its name: what it shows, its marks, and what it is called
// where that is not its text.
QStringList described(QWidget* control) {
  const bool isCalledSo = heard(control) == textOf(control).remove(" (on)") || isCell(control);
  return {stateOf(control), marks(control), isCalledSo ? "" : " heard" + quoted(heard(control))};
}

// Controls that are told in one line: those whose names differ by the number at their ends, and a
// window's groups, labels and buttons.
struct Family {
  QString name;
  QWidgetList members;
};

QString familyOf(const QWidget* control) {
  if (control->inherits("QGroupBox")) return "groups";
  if (control->inherits("QLabel")) return "labels";
  if (control->inherits("QPushButton")) return "buttons";
  static const QRegularExpression number("\\(?\\d+\\)?$");
  return control->objectName().remove(number);
}

// What is the same with all members of a family is told once.
QString told(const Family& family) {
  const auto& [name, members] = family;
  QString line = members.size() == 1 ? members[0]->objectName() : name + ":";
  std::array<QStringList, 3> parts;
  for (QWidget* member : members) {
    if (members.size() > 1) line += " " + member->objectName().remove(name);
    for (auto part = parts.begin(); const QString& text : described(member)) *part++ << text;
  }
  for (const QStringList& texts : parts)
    line += texts.count(texts[0]) == texts.size() ? texts[0] : texts.join("");
  return line + "\n";
}

// A window's title and commands, and its controls in their tab order.
QString described(const QWidget& window) {
  QString text = "== " + window.objectName() + quoted(window.windowTitle());
  for (const auto* menu : window.findChildren<QMenuBar*>())
    for (const auto* command : menu->actions())
      text += ", " + command->objectName() + quoted(command->text());
  QList<Family> families;
  const QWidgetList listed = controlsOf(&window);
  for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain()) {
    const auto known = std::ranges::find(families, familyOf(at), &Family::name);
    if (listed.contains(at) && known != families.end())
      known->members << at;
    else if (listed.contains(at))
      families << Family{familyOf(at), {at}};
  }
  text += "\n";
  for (const Family& family : families) text += told(family);
  return text;
}

class Listed : public EveryWindow {
protected:
  std::vector<std::string> described() const {
    std::vector<std::string> texts;
    for (const QWidget* opened : all) texts.push_back(ui::fromQt(tests::described(*opened)));
    return texts;
  }

  // Does with a control of the current window what it is there for: clicks it, moves it to its end,
  // picks its next item, types a 3.
  void use(QWidget* control) {
    const std::string name = ui::fromQt(control->objectName());
    if (const auto* list = qobject_cast<QComboBox*>(control))
      pick(name, (list->currentIndex() + 1) % list->count());
    else if (control->inherits("QAbstractButton"))
      click(name);
    else if (control->inherits("QSlider"))
      qobject_cast<QSlider*>(control)->triggerAction(QSlider::SliderToMaximum);
    else if (isResult(control) == false)
      enter(name, "3\r");
  }
};

// The file lists every window as it opens. Where it differs, what is seen is written beside the
// test program, to be looked at and, if it is right, copied. When all that can be used in a window
// was used, the others are as before, and each opens as it did at first.
TEST_F(Listed, EveryWindowOpensEachTime) {
  const auto fresh = described();
  std::string seen;
  for (const std::string& text : fresh) seen += text;
  QFile list(QStringLiteral(TESTS_FOLDER "/app/windows.txt"));
  ASSERT_TRUE(list.open(QIODevice::ReadOnly | QIODevice::Text));
  EXPECT_EQ(seen, list.readAll().toStdString());
  QFile written(QStringLiteral("windows.txt"));
  if (HasFailure() && written.open(QIODevice::WriteOnly)) written.write(seen.c_str());

  auto now = fresh;
  for (std::size_t i = 0; i < all.size(); ++i) {
    turnTo(windowNames.at(i));
    for (QWidget* control : controlsOf(current())) {
      if (control->inherits("QPushButton") || !control->isVisible() || !control->isEnabled())
        continue;
      use(control);
      expectGoodLook(current());
    }
    now[i] = described()[i];
    EXPECT_EQ(described(), now) << "beside " << windowNames.at(i);
  }
  window("fMain")->close();
  openAll();
  EXPECT_EQ(described(), fresh);
}

// What a control is, its unit and its range, in one sentence for eyes and for assistive tools.
TEST_F(EveryWindow, DescribesItsControls) {
  for (const QWidget* opened : all)
    for (const QWidget* control : controlsOf(opened)) {
      static const QRegularExpression shownOnly("^(lLine\\(|tLabel(Low|High)Range|Char\\d)");
      const bool isResult = control->objectName().contains(shownOnly);
      if ((control->focusPolicy() == Qt::NoFocus && !isResult) || isCell(control)) continue;
      EXPECT_FALSE(control->toolTip().isEmpty()) << fullName(control);
      const QString sentence = control->toolTip().section(" (Alt+", 0, 0);
      EXPECT_TRUE(control->accessibleDescription().contains(sentence)) << fullName(control);
    }
}

TEST_F(EveryWindow, StandsOnTheDesktopOnItsOwn) {
  EXPECT_EQ(QGuiApplication::applicationName(), "Tarnwick");
  EXPECT_TRUE(QFile::exists(TESTS_FOLDER "/../packaging/linux/" +
                            QGuiApplication::desktopFileName() + ".desktop.in"));
  for (const QWidget* opened : all) {
    const Qt::WindowFlags flags = opened->windowFlags();
    EXPECT_EQ(flags & Qt::WindowMinMaxButtonsHint, Qt::WindowMinimizeButtonHint)
        << fullName(opened);
    EXPECT_TRUE(opened->minimumSize() == opened->maximumSize() ||
                opened->findChild<QScrollArea*>() != nullptr)
        << fullName(opened);
    EXPECT_EQ(opened->parentWidget(), nullptr) << fullName(opened);
    EXPECT_FALSE(opened->windowIcon().isNull()) << fullName(opened);
  }
}

}  // namespace
}  // namespace tarnwick::tests
