#include "support/program.h"
#include "support/story.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QKeySequence>
#include <QLineEdit>
#include <QSlider>

#include <functional>
#include <map>
#include <set>

namespace tarnwick::tests {
namespace {

// Tells the stories of tests/stories.
class Telling : public Program, public testing::WithParamInterface<Story> {
protected:
  void tell(const QString& act);
  // What all controls show, parted by "|", lines ended by "\".
  QString seen(const QStringList& controls);
  void expectSeen(const QString& controls, const QString& text);
  void expectDots(const std::string& picture, const QString& dots);
  void expectRest();
  QStringList remembered_;
  QString rememberedTexts_;
};

// A cell of the drawing grid by its place from the top left on.
std::string cell(int place) {
  return "chk(" + std::to_string(place / 5 * 5 + 4 - place % 5) + ")";
}

// As another program finds it; off screen, where there is none, as this one does.
std::string clipboardSeen() {
  if (QGuiApplication::platformName() != "offscreen") return clipboardSeenByAnotherProgram();
  return ui::fromQt(QGuiApplication::clipboard()->text());
}

QString Telling::seen(const QStringList& controls) {
  QStringList texts;
  for (const QString& name : controls) texts << ui::toQt(shown(ui::fromQt(name)));
  return texts.join('|').replace("\r\n", "\\");
}

// A text that begins or ends with "..." is compared without what stands there.
void Telling::expectSeen(const QString& controls, const QString& text) {
  const QString all = seen(controls.split(' '));
  const QString wanted = QString(text).remove("...");
  if (text.endsWith("..."))
    EXPECT_EQ(all.left(wanted.size()).toStdString(), wanted.toStdString());
  else if (text.startsWith("..."))
    EXPECT_EQ(all.right(wanted.size()).toStdString(), wanted.toStdString());
  else
    EXPECT_EQ(all.toStdString(), wanted.toStdString());
}

// Reads a picture's dots by their colours: all pixels of one must have one of its two.
void Telling::expectDots(const std::string& picture, const QString& dots) {
  const QColor off = picture == "Preview" ? QColor(0, 128, 0) : QColor(Qt::white);
  const QImage image = control(picture)->grab().toImage();
  QString read;
  for (int i = 0; i < 40; ++i) {
    std::set<QRgb> colours;
    for (int pixel = 0; pixel < 9; ++pixel)
      colours.insert(image.pixel(2 + 3 * (i % 5) + pixel % 3, 2 + 3 * (i / 5) + pixel / 3));
    const QColor colour = colours.size() == 1 ? QColor(*colours.begin()) : QColor();
    if (i % 5 == 0 && i > 0) read += ' ';
    read += colour == QColor(Qt::black) ? '#' : colour == off ? '.' : '?';
  }
  EXPECT_EQ(read.toStdString(), dots.toStdString());
}

// Between two acts no button is held down, no list or menu is open, and the keys reach a control.
void Telling::expectRest() {
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  for (const QWidget* window : QApplication::topLevelWidgets())
    for (const auto* button : window->findChildren<QAbstractButton*>())
      EXPECT_FALSE(button->isDown()) << ui::fromQt(button->objectName());
  if (const QWidget* focus = QApplication::focusWidget())
    EXPECT_TRUE(focus->isEnabled()) << ui::fromQt(focus->objectName());
  else
    EXPECT_EQ(QApplication::activeWindow(), nullptr) << "no control has the focus";
}

void Telling::tell(const QString& act) {
  const QString rest = act.section(' ', 1);
  const std::string name = ui::fromQt(rest.section(' ', 0, 0));
  const std::string text = ui::fromQt(QString(rest.section(' ', 1)).replace("\\", "\r\n"));
  const auto expectEach = [&](bool (QWidget::*state)() const, bool wanted) {
    for (const QString& each : rest.split(' '))
      EXPECT_EQ((control(ui::fromQt(each))->*state)(), wanted) << ui::fromQt(each);
  };
  const auto expectShown = [&](const QString& line) {
    expectSeen(line.section(" =", 0, 0), line.section(" =", 1).mid(1));
  };
  const std::map<QString, std::function<void()>> verbs{
      // Windows and messages
      {"open", [&] { open(name, text); }},
      {"turn", [&] { turnTo(name); }},
      {"close", [&] { current()->close(); }},
      {"message", [&] { EXPECT_EQ(messageShown(), ui::fromQt(rest)); }},
      {"ok", [&] { confirmMessage(); }},
      // What the user does
      {"click", [&] { click(name); }},
      {"menu", [&] { click(name, Qt::RightButton); }},
      {"go", [&] { control(name)->setFocus(Qt::TabFocusReason); }},
      {"press",
       [&] {
         for (const QString& key : rest.split(' ')) {
           const QKeyCombination keys = QKeySequence(key)[0];
           press(keys.key(), keys.keyboardModifiers());
         }
       }},
      {"type", [&] { type(ui::fromQt(rest)); }},
      {"retype", [&] { enter(name, text); }},
      {"enter", [&] { enterAndConfirm(name, text); }},
      {"copy", [&] { QGuiApplication::clipboard()->setText(rest); }},
      {"paste", [&] { paste(name, text); }},
      {"pick", [&] { pick(name, std::stoi(text)); }},
      {"draw",
       [&] {
         for (int i = 0; i < 40; ++i)
           if (rest[i + i / 5] == '#') click(cell(i));
       }},
      // What assistive tools and the wheel do: the focus stays
      {"trigger", [&] { control<QAbstractButton>(name)->click(); }},
      {"put",
       [&] {
         if (auto* slider = qobject_cast<QSlider*>(control(name)))
           slider->setValue(std::stoi(text));
         else
           control<QLineEdit>(name)->setText(ui::toQt(text));
       }},
      // What the user sees
      {"see", [&] { expectShown(rest); }},
      {"remember",
       [&] {
         remembered_ = rest.split(' ');
         rememberedTexts_ = seen(remembered_);
       }},
      {"same", [&] { EXPECT_EQ(seen(remembered_), rememberedTexts_); }},
      {"picture", [&] { expectDots(name, rest.section(' ', 1)); }},
      {"grid",
       [&] {
         for (int i = 0; i < 40; ++i) {
           const QColor colour(control(cell(i))->grab().toImage().pixel(8, 8));
           EXPECT_EQ(colour, QColor(rest[i + i / 5] == '#' ? Qt::black : Qt::white)) << cell(i);
         }
       }},
      {"focus", [&] { EXPECT_EQ(focused(), name); }},
      {"enabled", [&] { expectEach(&QWidget::isEnabled, true); }},
      {"disabled", [&] { expectEach(&QWidget::isEnabled, false); }},
      {"visible", [&] { expectEach(&QWidget::isVisible, true); }},
      {"hidden", [&] { expectEach(&QWidget::isVisible, false); }},
      {"left", [&] { EXPECT_EQ(control(name)->mapTo(current(), QPoint()).x(), std::stoi(text)); }},
      {"clipboard",
       [&] { EXPECT_EQ(clipboardSeen(), ui::fromQt(QString(rest).replace("\\", "\r\n"))); }},
  };
  const auto found = verbs.find(act.section(' ', 0, 0));
  ASSERT_NE(found, verbs.end()) << "no such act";
  found->second();
  expectRest();
}

TEST_P(Telling, HoldsTrue) {
  for (const auto& [line, text] : GetParam().acts) {
    SCOPED_TRACE("line " + std::to_string(line) + ": " + ui::fromQt(text));
    tell(text);
    if (HasFatalFailure()) return;
  }
}

std::vector<Story> storiesOnDisplay(bool onDisplay) {
  std::vector<Story> chosen;
  for (const Story& story : readStories(QStringLiteral(TESTS_FOLDER "/stories")))
    if ((story.name.find("_OnDisplay") != std::string::npos) == onDisplay) chosen.push_back(story);
  return chosen;
}

std::string nameOf(const testing::TestParamInfo<Story>& info) {
  return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Stories, Telling, testing::ValuesIn(storiesOnDisplay(false)), nameOf);
INSTANTIATE_TEST_SUITE_P(OnDisplayStories, Telling, testing::ValuesIn(storiesOnDisplay(true)),
                         nameOf);

}  // namespace
}  // namespace tarnwick::tests
