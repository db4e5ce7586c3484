#include "support/look.h"
#include "support/program.h"
#include "support/story.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDir>

#include <map>

namespace tarnwick::tests {
namespace {

constexpr int pixels = 40;

// A character is drawn as eight rows of five dots, "#" for those that are on.
bool isOn(const QString& dots, int place) {
  return dots.mid(place + place / 5, 1) == "#";
}

// A cell of the drawing grid by its place from the top left on.
std::string cell(int place) {
  return "chk(" + std::to_string(place / 5 * 5 + 4 - place % 5) + ")";
}

// A text in which "\\" stands for the end of a line.
std::string lines(QString text) {
  return ui::fromQt(text.replace("\\", "\r\n"));
}

// Tells the stories of tests/stories.
class Telling : public Program, public testing::WithParamInterface<Story> {
public:
  // What follows an act's verb: all of it, its first word, and the text behind that.
  struct Words {
    QString all;
    std::string name = ui::fromQt(all.section(' ', 0, 0));
    QString text = all.section(' ', 1);
  };
  using Verbs = std::map<QString, void (*)(Telling& user, const Words& words)>;
  static const Verbs& verbs();

protected:
  // What all controls show, parted by "|".
  QString seen(const QString& controls) {
    QStringList texts;
    for (const QString& name : controls.split(' ')) texts << ui::toQt(shown(ui::fromQt(name)));
    return texts.join('|').replace("\r\n", "\\");
  }

  // A text that begins or ends with "..." is compared without what stands there.
  void expectSeen(const QString& line) {
    const QString all = seen(line.section(" =", 0, 0));
    const QString wanted = line.section(" =", 1).mid(1);
    const qsizetype length = QString(wanted).remove("...").size();
    const QString part = wanted.startsWith("...") ? "..." + all.right(length)
                         : wanted.endsWith("...") ? all.left(length) + "..."
                                                  : all;
    EXPECT_EQ(part.toStdString(), wanted.toStdString());
  }

  void expectEach(const QString& controls, bool (QWidget::*state)() const, bool wanted) {
    for (const QString& each : controls.split(' '))
      EXPECT_EQ((control(ui::fromQt(each))->*state)(), wanted) << ui::fromQt(each);
  }

  // Reads what stands on the screen: nine pixels of a dot must have one of its two colours.
  static void expectDots(QWidget* picture, int first, int pitch, const QString& dots) {
    const QImage image = onScreen(picture);
    const QColor off = picture->objectName() == "Preview" ? QColor(0, 128, 0) : QColor(Qt::white);
    for (int i = 0; i < pixels; ++i)
      for (int p = 0; p < 9; ++p)
        EXPECT_EQ(
            image.pixelColor(first + pitch * (i % 5) + p % 3, first + pitch * (i / 5) + p / 3),
            isOn(dots, i) ? QColor(Qt::black) : off)
            << "dot " << i;
  }

  // What is out of date has a text of another colour than the rest.
  void expectDimmed(const QString& controls, bool dimmed) {
    for (const QString& name : controls.split(' ')) {
      const auto* shown = control(ui::fromQt(name));
      const auto role = shown->inherits("QLabel") ? QPalette::WindowText : QPalette::Text;
      EXPECT_EQ(shown->palette().color(role) != QPalette().color(role), dimmed) << fullName(shown);
    }
  }

  void draw(const QString& dots) {
    for (int i = 0; i < pixels; ++i)
      if (isOn(dots, i)) click(cell(i));
  }

  // Between two acts no button is held down, no list or menu is open, the keys reach a control, and
  // the window looks as it should.
  void expectRest() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    for (const QWidget* window : QApplication::topLevelWidgets())
      for (const auto* button : window->findChildren<QAbstractButton*>())
        EXPECT_FALSE(button->isDown()) << fullName(button);
    if (const QWidget* focus = QApplication::focusWidget())
      EXPECT_TRUE(focus->isEnabled()) << fullName(focus);
    else
      EXPECT_EQ(QApplication::activeWindow(), nullptr) << "no control has the focus";
    if (current() != nullptr && message() == nullptr) expectGoodLook(current());
  }

private:
  QString remembered_;
};

const Telling::Verbs& Telling::verbs() {
  using User = Telling&;
  using Is = const Words&;
  static const Verbs all{
      // Windows and messages
      {"open", [](User user, Is act) { user.open(act.name, ui::fromQt(act.text)); }},
      {"turn", [](User user, Is act) { user.turnTo(act.name); }},
      {"close", [](User user, Is) { user.current()->close(); }},
      {"message", [](User user, Is act) { EXPECT_EQ(user.messageShown(), ui::fromQt(act.all)); }},
      {"ok", [](User user, Is) { user.confirmMessage(); }},
      // What the user does
      {"click", [](User user, Is act) { user.click(act.name); }},
      {"menu", [](User user, Is act) { user.click(act.name, Qt::RightButton); }},
      {"go", [](User user, Is act) { user.control(act.name)->setFocus(Qt::TabFocusReason); }},
      {"press", [](User user, Is act) { user.press(QKeySequence(act.all)[0]); }},
      {"type", [](User user, Is act) { user.type(ui::fromQt(act.all)); }},
      {"retype", [](User user, Is act) { user.enter(act.name, ui::fromQt(act.text)); }},
      {"enter", [](User user, Is act) { user.enter(act.name, ui::fromQt(act.text) + "\r"); }},
      {"copy", [](User, Is act) { QGuiApplication::clipboard()->setText(act.all); }},
      {"paste", [](User user, Is act) { user.paste(act.name, lines(act.text)); }},
      {"pick", [](User user, Is act) { user.pick(act.name, std::stoi(ui::fromQt(act.text))); }},
      {"draw", [](User user, Is act) { user.draw(act.all); }},
      // What assistive tools and the wheel do: the focus stays
      {"trigger", [](User user, Is act) { user.control<QAbstractButton>(act.name)->click(); }},
      {"put",
       [](User user, Is act) {
         QWidget* control = user.control(act.name);
         control->setProperty(control->inherits("QSlider") ? "value" : "text", act.text);
       }},
      // What the user sees
      {"see", [](User user, Is act) { user.expectSeen(act.all); }},
      {"remember",
       [](User user, Is act) { user.remembered_ = act.all + " = " + user.seen(act.all); }},
      {"same", [](User user, Is) { user.expectSeen(user.remembered_); }},
      {"picture", [](User user, Is act) { expectDots(user.control(act.name), 2, 3, act.text); }},
      {"grid", [](User user,
                  Is act) { expectDots(user.control("chk(4)")->parentWidget(), 13, 28, act.all); }},
      {"dimmed", [](User user, Is act) { user.expectDimmed(act.all, true); }},
      {"true", [](User user, Is act) { user.expectDimmed(act.all, false); }},
      {"focus", [](User user, Is act) { EXPECT_EQ(user.focused(), act.name); }},
      {"enabled", [](User user, Is act) { user.expectEach(act.all, &QWidget::isEnabled, true); }},
      {"disabled", [](User user, Is act) { user.expectEach(act.all, &QWidget::isEnabled, false); }},
      {"visible", [](User user, Is act) { user.expectEach(act.all, &QWidget::isVisible, true); }},
      {"hidden", [](User user, Is act) { user.expectEach(act.all, &QWidget::isVisible, false); }},
      {"left",
       [](User user, Is act) {
         const int left = user.control(act.name)->mapTo(user.current(), QPoint()).x();
         EXPECT_EQ(left, std::stoi(ui::fromQt(act.text)));
       }},
      {"clipboard", [](User, Is act) { EXPECT_EQ(clipboardSeen(), lines(act.all)); }},
  };
  return all;
}

TEST_P(Telling, HoldsTrue) {
  ASSERT_EQ(GetParam().mistake, "");
  for (const auto& [line, text] : GetParam().acts) {
    SCOPED_TRACE("line " + std::to_string(line) + ": " + ui::fromQt(text));
    verbs().at(text.section(' ', 0, 0))(*this, {text.section(' ', 1)});
    expectRest();
    if (HasFatalFailure()) return;
  }
}

QList<Story> told() {
  QStringList verbs;
  for (const auto& [verb, meaning] : Telling::verbs()) verbs << verb;
  QList<Story> all;
  const QDir folder(QStringLiteral(TESTS_FOLDER "/stories"));
  for (const QString& name : folder.entryList({"*.txt"}, QDir::Files, QDir::Name)) {
    QFile file(folder.filePath(name));
    all << readStories(name, file.open(QIODevice::ReadOnly) ? file.readAll() : "", verbs);
  }
  return all;
}

INSTANTIATE_TEST_SUITE_P(Stories, Telling, testing::ValuesIn(told()),
                         [](const auto& story) { return story.param.name; });

TEST(StoryReader, NamesTheLineOfAMistake) {
  for (const auto& [text, mistake] : std::initializer_list<std::pair<const char*, const char*>>{
           {"go {a}\n== A\nlet {a} x\n", "a.txt:1: {a} stands for nothing"},
           {"go\n", "a.txt:1: stands outside of a story"},
           {"== A\ngo\nend\n", "a.txt:3: ends no loop"},
           {"== A\nfor {a} in 1; 2\ngo\n== B\nend\n", "a.txt:2: the loop has no end"},
           {"== A\nfor {a} {b} in\n1; 2\ngo\nend\n", "a.txt:2: the table has no do"},
           {"== A\nfor {a} {b} in\n1; 2\n1\ndo\ngo\nend\n", "a.txt:4: 1 values, not 2"},
           {"== A\nfor {a} {b} in\n1; 2; 3\ndo\ngo\nend\n", "a.txt:3: 3 values, not 2"},
           {"== A\ngo\nfetch\n", "a.txt:3: no such act"},
           {"== A\n|go\n", "a.txt:2: continues nothing"},
           {"== A\n# all is well\nfor {a} in x; y\n  go\n  |{a}\nend\n", ""}})
    EXPECT_EQ(readStories("a.txt", text, {"go"}).front().mistake, mistake) << text;
}

}  // namespace
}  // namespace tarnwick::tests
